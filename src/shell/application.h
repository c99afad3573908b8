// SPDX-License-Identifier: GPL-3.0-or-later
// The running program, and what happens to a failure that nobody caught.
#pragma once

#include <string>

#include <QApplication>

namespace kav {

/// Ends the program with a message when a failure leaves an event handler: a box where there is a desktop,
/// a line on standard error in any case, and exit code 1. The preferences file is not written.
class Application : public QApplication {
    Q_OBJECT

  public:
    Application(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Tells the failure and ends the process.
    [[noreturn]] static void endWithFailure(const std::string& message);

  signals:
    /// A failure ends the program: the last chance to keep what was typed.
    void failing();
};

}  // namespace kav

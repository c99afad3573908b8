// SPDX-License-Identifier: GPL-3.0-or-later
// Shows what a started script prints.
#pragma once

#include <QPlainTextEdit>

namespace kav {

/// A console: the script's output as it comes, in the order it was printed. It stays open for reading when
/// the script has ended.
class ConsoleWindow : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit ConsoleWindow(const QString& title);

    /// Adds output, whatever its line ends, at the end.
    void print(const QByteArray& output);
};

}  // namespace kav

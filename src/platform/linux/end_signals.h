// SPDX-License-Identifier: GPL-3.0-or-later
// The signals by which Linux ends a program.
#pragma once

#include <QObject>

class QSocketNotifier;

namespace kav {

/// Turns SIGTERM, SIGHUP and SIGINT into an event, so that the program can end in order. Each is taken once;
/// the next one ends a program that does not answer. A signal that the program was started to ignore stays
/// ignored. There is one of these at a time.
class EndSignals : public QObject {
    Q_OBJECT

  public:
    /// Throws std::system_error when the system has no pipe left.
    EndSignals();
    ~EndSignals() override;

  signals:
    void received();

  private:
    int readEnd_ = -1;
};

}  // namespace kav

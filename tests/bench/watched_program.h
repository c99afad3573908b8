// SPDX-License-Identifier: GPL-3.0-or-later
// A program with a window, watched from without: when it is ready, what it costs.
#pragma once

#include <map>

#include <QProcess>
#include <QString>
#include <QStringList>

namespace kav::bench {

/// Starts a program on the display and sees what every program shows to the system: its window's title, its
/// threads' states and processor time, its memory. Every program is measured in this same way.
class WatchedProgram {
  public:
    WatchedProgram(const QString& program, const QStringList& arguments);
    ~WatchedProgram();
    WatchedProgram(const WatchedProgram&) = delete;
    WatchedProgram& operator=(const WatchedProgram&) = delete;

    /// Seconds from the start until a window whose title holds the text has appeared and the program has
    /// then come to rest. It rests when no thread has run for some time; the end is when the last one
    /// stopped. Ends the benchmark after a minute of waiting.
    [[nodiscard]] double secondsUntilReady(const QString& title);

    /// Bytes of memory that hold no file's content: what the program has made itself.
    [[nodiscard]] double memory() const;

    /// How often a second the program's threads have woken up, over so many seconds.
    [[nodiscard]] double wakeupsPerSecond(int seconds) const;

  private:
    [[nodiscard]] bool runs();
    [[nodiscard]] QString folder() const;
    [[nodiscard]] long long wakeups() const;

    QProcess process_;
    std::map<QString, QByteArray>
        schedules_;  ///< each thread's processor time and wait time at the last look
};

}  // namespace kav::bench

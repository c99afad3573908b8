// SPDX-License-Identifier: GPL-3.0-or-later
// A program watched through the process file system and the window manager's list of windows.
#include "watched_program.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

namespace kav::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kLook = 2ms;
/// Shorter than any pause after which a program that waits for its user moves: carets blink every 500 ms, and
/// what a program reads ahead in the background begins later.
constexpr auto kRest = 200ms;
constexpr auto kPatience = 60s;

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number behind the word at the start of a line, 0 where there is none.
long long numberBehind(const QByteArray& text, const QByteArray& word) {
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith(word)) return line.mid(word.size()).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

bool hasWindow(const QString& title) {
    QProcess search;
    search.start("xdotool", {"search", "--onlyvisible", "--name", title});
    search.waitForFinished();
    return search.exitCode() == 0;
}

[[noreturn]] void giveUp(const QString& why) {
    std::fprintf(stderr, "kav bench: %s\n", qPrintable(why));
    std::exit(EXIT_FAILURE);
}

}  // namespace

WatchedProgram::WatchedProgram(const QString& program, const QStringList& arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("NO_AT_BRIDGE", "1");  // no program waits for an accessibility bus that is not there
    process_.setProcessEnvironment(environment);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.start(program, arguments);
    if (!process_.waitForStarted()) giveUp("cannot start " + program);
}

WatchedProgram::~WatchedProgram() {
    process_.kill();
    process_.waitForFinished();
}

QString WatchedProgram::folder() const {
    return "/proc/" + QString::number(process_.processId());
}

bool WatchedProgram::runs() {
    std::map<QString, QByteArray> now;
    bool wantsTo = false;
    for (const QString& thread : QDir(folder() + "/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString of = folder() + "/task/" + thread;
        now[thread] = content(of + "/schedstat");
        // A thread that waits for a processor or a disk has more to do.
        wantsTo = wantsTo || !content(of + "/status").contains("State:\tS");
    }
    const bool has = now != schedules_;
    schedules_ = now;
    return has || wantsTo;
}

double WatchedProgram::secondsUntilReady(const QString& title) {
    const auto start = Clock::now();
    auto lastRun = start;
    bool shown = false;
    while (!shown || Clock::now() - lastRun < kRest) {
        if (Clock::now() - start > kPatience) giveUp("no window '" + title + "' came to rest");
        if (runs()) lastRun = Clock::now();
        if (!shown && Clock::now() - lastRun > 10 * kLook) shown = hasWindow(title);
        std::this_thread::sleep_for(kLook);
    }
    return std::chrono::duration<double>(lastRun - start).count();
}

double WatchedProgram::memory() const {
    return static_cast<double>(numberBehind(content(folder() + "/smaps_rollup"), "Anonymous:")) * 1024;
}

long long WatchedProgram::wakeups() const {
    long long count = 0;
    for (const QString& thread : QDir(folder() + "/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        count += numberBehind(content(folder() + "/task/" + thread + "/status"), "voluntary_ctxt_switches:");
    return count;
}

double WatchedProgram::wakeupsPerSecond(int seconds) const {
    const long long before = wakeups();
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    return static_cast<double>(wakeups() - before) / seconds;
}

}  // namespace kav::bench

// SPDX-License-Identifier: GPL-3.0-or-later
// The signals by which Linux ends a program.
#include "platform/linux/end_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

#include <QSocketNotifier>

namespace kav {

namespace {

constexpr std::array<int, 3> kSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal handler reaches nothing but globals, and may do little more than write.
volatile std::sig_atomic_t writeEnd = -1;

extern "C" void passOn(int /*signal*/) {
    const int savedError = errno;
    const char byte = 1;
    // A full pipe holds the news already.
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = savedError;
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    readEnd_ = ends[0];
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (read(readEnd_, &byte, 1) == 1) emit received();
    });
    for (const int signal : kSignals)
        setHandler(signal, passOn);
}

EndSignals::~EndSignals() {
    for (const int signal : kSignals)
        setHandler(signal, SIG_DFL);
    close(readEnd_);
    close(writeEnd);
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Starting other programs.
#pragma once

#include <string>

namespace kav {

/// How the started program's window appears.
enum class WindowStyle { Hidden, NormalFocus, MaximizedFocus };

/// Starts programs by command line, without waiting for them.
class ProcessLauncher {
  public:
    virtual ~ProcessLauncher() = default;

    /// Starts the command line and returns the system's number for the new process. The line is a program's
    /// path and its arguments; no shell sees it. Raises 53 when the program is not there, 5 when it cannot
    /// be started.
    virtual long launch(const std::string& commandLine, WindowStyle style) = 0;
};

}  // namespace kav

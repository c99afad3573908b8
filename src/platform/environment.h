// SPDX-License-Identifier: GPL-3.0-or-later
// What surrounds the process: variables, the user's desktop folder, its end.
#pragma once

#include <string>

namespace kav {

class Environment {
  public:
    virtual ~Environment() = default;

    /// The variable's value; empty when it is not set.
    [[nodiscard]] virtual std::string variable(const std::string& name) = 0;

    /// The folder that the user sees as the desktop, made when it is missing.
    [[nodiscard]] virtual std::string desktopFolder() = 0;

    /// Ends the program now: no window is asked, nothing is written.
    virtual void endAtOnce(int exitCode) = 0;

    /// Ends the program in order, as soon as the current event is done.
    virtual void end(int exitCode) = 0;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// A command line taken apart into a program and its arguments, without a shell.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// A command line in its parts.
struct SplitCommand {
    std::string program;
    std::vector<std::string> arguments;
    std::string tail;  ///< everything behind the program as it stands, for programs that take one path
};

/// Splits the way Windows does: a quoted first word is the program; otherwise, where the first words make
/// up the path of an existing program (as `isProgram` tells), the longest such path is; otherwise the first
/// word. Arguments end at blanks outside quotes, and a backslash escapes a quote.
[[nodiscard]] SplitCommand splitCommandLine(std::string_view line,
                                            const std::function<bool(const std::string&)>& isProgram);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments written into a command line, for programs and for batch files.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The argument as a program finds it again when it takes its command line apart (see splitCommandLine): in
/// quotes when it is empty or holds blanks or quotes, as it stands otherwise.
[[nodiscard]] std::string quotedArgument(std::string_view argument);

/// True for the path of a file that only the system's command processor can run (.bat, .cmd).
[[nodiscard]] bool isBatchFile(std::string_view path);

/// The command line by which `processor` (cmd.exe) runs a batch file with arguments that stand behind it as
/// they are, and runs nothing else. Raises 5 for what the processor would read as more than text: `&`, `|`,
/// `<`, `>`,
/// `^`, `%` or a line break in the arguments, `%` or a quote in the file's path.
[[nodiscard]] std::string batchCommandLine(std::string_view processor, std::string_view batchFile,
                                           std::string_view arguments);

}  // namespace kav

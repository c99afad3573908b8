// SPDX-License-Identifier: GPL-3.0-or-later
// One run of kav-asm: assembles, writes what was asked for, reports.
#pragma once

#include "assembler/command_line.h"

#include <iosfwd>
#include <string>

namespace kav::assembler {

/// How kav-asm ends.
enum ExitCode : int { kSuccess = 0, kSourceErrors = 1, kWrongUsage = 2, kFileTrouble = 3 };

/// Does what the command line asks for. Notes of the source go to `output`, errors and warnings to
/// `errors`. `programFolder` is where kav-asm lies; included files are also looked for in its `include`.
[[nodiscard]] ExitCode run(const CommandLine& line, const std::string& programFolder, std::ostream& output,
                           std::ostream& errors);

}  // namespace kav::assembler

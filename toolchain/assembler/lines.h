// SPDX-License-Identifier: GPL-3.0-or-later
// Reading source line by line.
#pragma once

#include "assembler/pass.h"

#include <memory>
#include <string_view>

namespace kav::assembler {

/// Reads all lines of the file as part of the pass.
void readSource(Pass& pass, const std::shared_ptr<const SourceFile>& file);

/// Reads one line: a directive that begins with #, or statements with backslashes between them.
void readLine(Pass& pass, std::string_view line);

/// Reads the lines of a #macro that a statement calls.
void readMacroLines(Pass& pass, const Macro& macro, const std::vector<std::string>& arguments);

}  // namespace kav::assembler

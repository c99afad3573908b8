// SPDX-License-Identifier: GPL-3.0-or-later
// The directives that begin with #: includes, macros and conditionals.
#pragma once

#include "assembler/pass.h"

#include <string_view>

namespace kav::assembler {

/// Obeys the directive in `text`, whose first character is the #.
void readHashDirective(Pass& pass, std::string_view text);

/// True when the directive is #endmacro.
[[nodiscard]] bool endsMacro(std::string_view text);

/// Adds a line to the macro that is being read.
void addMacroLine(Pass& pass, std::string_view line);

}  // namespace kav::assembler

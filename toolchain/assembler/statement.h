// SPDX-License-Identifier: GPL-3.0-or-later
// One statement: label, operation, operands.
#pragma once

#include "assembler/pass.h"

#include <string_view>

namespace kav::assembler {

/// A statement taken apart.
struct Statement {
    std::string_view label;      ///< empty when there is none
    std::string_view operation;  ///< as written, a period included
    std::string_view operands;   ///< all that follows, trimmed
};

/// Assembles one statement. Its first character stands in column 1.
void assembleStatement(Pass& pass, std::string_view text);

}  // namespace kav::assembler

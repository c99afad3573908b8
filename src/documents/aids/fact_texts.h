// SPDX-License-Identifier: GPL-3.0-or-later
// The facts of a program in words, as panels and hovers show them.
#pragma once

#include "documents/aids/program_facts.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

/// "12 bytes, 45/40 T": size and time, the time when all conditional jumps are taken first where it differs.
/// Says how many lines with mistakes are left out. Empty when there is nothing to tell.
[[nodiscard]] std::string costText(const Cost& cost);

/// "Line 3, column 7", both from 1.
[[nodiscard]] std::string caretText(std::size_t line, std::size_t column);

/// What a hover shows and the part of the line that it is about.
struct HoverText {
    std::size_t begin = 0;  ///< in bytes
    std::size_t end = 0;
    std::string text;  ///< lines separated by line feeds; empty when there is nothing to tell
};

/// What is known of the place `column`, in bytes from 0, of a line of the document: a name's value and where
/// it is defined, a macro's text, a number in the other radices, an instruction's bytes and time.
[[nodiscard]] HoverText hoverTextAt(std::string_view line, int lineNumber, std::size_t column,
                                    const ProgramFacts& facts);

}  // namespace kav

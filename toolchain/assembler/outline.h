// SPDX-License-Identifier: GPL-3.0-or-later
// What the statements of the user's document became.
#pragma once

#include "assembler/timing.h"

#include <cstddef>
#include <cstdint>

namespace kav::assembler {

/// A statement of the user's document that became bytes. Lines in which macros were replaced count as one
/// statement.
struct OutlinedStatement {
    int line = 0;                 ///< in the user's document, from 1
    std::size_t begin = 0;        ///< where it begins in its line, counted in bytes from 0
    std::size_t end = 0;          ///< behind its last character, blanks and comment not counted
    std::uint16_t address = 0;    ///< of its first byte
    std::uint32_t byteCount = 0;  ///< at least 1
    Time time;                    ///< of its instructions, 0 for data
};

}  // namespace kav::assembler

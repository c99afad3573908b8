// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as assembly source writes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kav::assembler {

/// What stands at a place where a number may stand.
enum class NumberKind {
    kNumber,    ///< a number
    kNone,      ///< nothing that looks like one
    kInvalid,   ///< begins like a number but holds a digit that its radix does not have
    kTooLarge,  ///< more than 32 bits
};

struct Number {
    NumberKind kind = NumberKind::kNone;
    std::uint32_t value = 0;
    std::size_t end = 0;  ///< the position behind what was read
};

/// Reads the number at `position`: $1F 1Fh %1010 1010b @17 17o 12 12d, and with `otherForms` also 0x1F and
/// 0b101. A lone $, % or @ is no number.
[[nodiscard]] Number readNumber(std::string_view text, std::size_t position, bool otherForms);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// What the operands of an instruction are.
#pragma once

#include "assembler/instruction_table.h"

#include <cstdint>
#include <string_view>

namespace kav::assembler {

/// One operand, as instruction forms want it.
struct Operand {
    std::uint32_t classes = 0;     ///< OperandClass bits
    std::uint8_t code = 0;         ///< number of the register or pair; (hl) and (ix+d) count as register 6
    std::uint8_t condition = 0;    ///< number of the condition
    std::uint8_t indexPrefix = 0;  ///< DD for ix, FD for iy
    std::string_view expression;   ///< of a value, an address or a displacement; empty for (ix)
    std::string_view text;         ///< as it stands in the source
};

/// Tells what an operand is. `text` is trimmed.
[[nodiscard]] Operand classified(std::string_view text);

}  // namespace kav::assembler

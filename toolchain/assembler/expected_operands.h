// SPDX-License-Identifier: GPL-3.0-or-later
// What an instruction takes, in words, for messages.
#pragma once

#include "assembler/instruction_table.h"

#include <cstdint>
#include <span>
#include <string>

namespace kav::assembler {

/// " (expected: a,n or hl,bc/de/hl/sp)" and the like, at most five forms: those that begin with an operand of
/// the given classes, or all when there are none.
[[nodiscard]] std::string expectedOperands(std::span<const InstructionForm> forms,
                                           std::uint32_t firstClasses);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// What an instruction takes, in words, for messages.
#pragma once

#include <span>
#include <string>

#include "assembler/instruction_table.h"

namespace kav::assembler {

/// " (a,n or hl,bc is possible)" and the like; at most the first six forms.
[[nodiscard]] std::string expectedOperands(std::span<const InstructionForm> forms);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// Instructions turned into bytes.
#pragma once

#include "assembler/instruction_table.h"
#include "assembler/pass.h"

#include <span>
#include <string_view>

namespace kav::assembler {

/// Assembles the instruction of the given forms; what does not fit is reported.
void assembleInstruction(Pass& pass, std::string_view mnemonic, std::string_view operands,
                         std::span<const InstructionForm> forms);

/// Assembles an instruction that the source has added.
void assembleAdded(Pass& pass, const AddedMatch& match);

}  // namespace kav::assembler

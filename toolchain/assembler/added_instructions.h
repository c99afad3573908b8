// SPDX-License-Identifier: GPL-3.0-or-later
// Instructions that a source adds with .addinstr.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kav::assembler {

/// How the arguments of an added instruction go into its bytes.
enum class ArgumentRule {
    kPlain,         ///< NOP: behind the opcode, low byte first
    kRelative,      ///< R1: the last byte is the distance from the next instruction
    kBit,           ///< ZBIT: the first argument is a bit number, for bits 3 to 5 of the last opcode byte
    kDisplacement,  ///< ZIX, ZIDX: the first argument is a displacement, a second one follows as for NOP
};

/// One added form of an instruction.
struct AddedInstruction {
    std::string pattern;  ///< the arguments in lower case without blanks, `*` for an expression
    std::vector<std::uint8_t> opcode;
    int size = 0;  ///< of the whole instruction in bytes
    ArgumentRule rule = ArgumentRule::kPlain;
};

/// A form that fits, and the expressions that stand at its `*`.
struct AddedMatch {
    const AddedInstruction* instruction = nullptr;
    std::vector<std::string_view> arguments;
};

class AddedInstructions {
  public:
    /// Adds the instruction that the text behind .addinstr describes:
    /// mnemonic, arguments, opcode, size, rule, class. Returns what is wrong with it, or an empty text.
    std::string add(std::string_view definition);

    /// The form that fits the operands; no instruction when there is none.
    [[nodiscard]] AddedMatch find(std::string_view mnemonic, std::string_view operands) const;

    [[nodiscard]] bool empty() const { return forms_.empty(); }

    /// True when forms of the mnemonic were added.
    [[nodiscard]] bool knows(std::string_view mnemonic) const;

    /// All mnemonics that forms were added for, in lower case.
    [[nodiscard]] std::vector<std::string> mnemonics() const;

  private:
    std::unordered_map<std::string, std::vector<AddedInstruction>> forms_;  // by mnemonic in lower case
};

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// The instructions of the Z80, documented and not, as a table.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace kav::assembler {

/// What an operand can be. An operand may be several at once: `c` is a register and a condition.
enum OperandClass : std::uint32_t {
    kRegA = 1U << 0,
    kRegC = 1U << 1,
    kRegBde = 1U << 2,
    kRegHl = 1U << 3,    ///< h and l
    kRegHalf = 1U << 4,  ///< ixh, ixl, iyh, iyl
    kRegF = 1U << 5,
    kRegI = 1U << 6,
    kRegR = 1U << 7,
    kPairBc = 1U << 8,
    kPairDe = 1U << 9,
    kPairHl = 1U << 10,
    kPairSp = 1U << 11,
    kPairAf = 1U << 12,
    kPairAfShadow = 1U << 13,
    kPairIndex = 1U << 14,  ///< ix, iy
    kAtHl = 1U << 15,
    kAtBc = 1U << 16,
    kAtDe = 1U << 17,
    kAtSp = 1U << 18,
    kAtC = 1U << 19,
    kAtIndex = 1U << 20,         ///< (ix), (iy)
    kAtIndexed = 1U << 21,       ///< (ix+d), (iy+d)
    kAtAddress = 1U << 22,       ///< (nn)
    kValue = 1U << 23,           ///< n, nn
    kCondition = 1U << 24,       ///< nz z nc c po pe p m
    kShortCondition = 1U << 25,  ///< nz z nc c
};

/// Where an operand goes in the bytes of an instruction.
enum class Place : std::uint8_t {
    kNowhere,
    kBits0,      ///< register number in bits 0 to 2
    kBits3,      ///< register number in bits 3 to 5
    kPair,       ///< register pair number in bits 4 and 5
    kCondition,  ///< condition number in bits 3 to 5
    kByte,       ///< behind the opcode
    kWord,       ///< behind the opcode, low byte first
    kRelative,   ///< behind the opcode, as a distance from the next instruction
    kBit,        ///< bit number in bits 3 to 5
    kRestart,    ///< 0, 8, ... $38 in bits 3 to 5
    kMode,       ///< interrupt mode 0 to 2
    kZero,       ///< must be 0 and goes nowhere
};

/// One form of an instruction. An operand class of 0 means that there is no such operand. A form with an
/// index register gets its DD or FD in front, and behind the opcode (between CB and the opcode) its
/// displacement.
struct InstructionForm {
    std::array<std::uint32_t, 3> operands{};
    std::uint8_t prefix = 0;  ///< CB, ED or none
    std::uint8_t opcode = 0;
    std::array<Place, 3> places{};
};

/// The forms of an instruction, in the order in which they are tried; none when it is no instruction.
[[nodiscard]] std::span<const InstructionForm> formsOf(std::string_view mnemonic);

/// All mnemonics, in lower case.
[[nodiscard]] std::span<const std::string_view> mnemonics();

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// How long the processor takes for an instruction.
#include "assembler/timing.h"

#include <array>
#include <cstddef>

namespace kav::assembler {

namespace {

constexpr std::uint8_t kBitPrefix = 0xCB;
constexpr std::uint8_t kExtendedPrefix = 0xED;
constexpr std::uint8_t kIxPrefix = 0xDD;
constexpr std::uint8_t kIyPrefix = 0xFD;

// T-states of the instructions without a prefix, as in Zilog's Z80 CPU User Manual. Where a condition
// decides, this is the time when it does not hold. A prefix alone has the time that fetching it takes.
// clang-format off
constexpr std::array<std::uint8_t, 256> kPlain{
    // 0   1   2   3   4   5   6   7   8   9   A   B   C   D   E   F
       4, 10,  7,  6,  4,  4,  7,  4,  4, 11,  7,  6,  4,  4,  7,  4,  // 00
       8, 10,  7,  6,  4,  4,  7,  4, 12, 11,  7,  6,  4,  4,  7,  4,  // 10
       7, 10, 16,  6,  4,  4,  7,  4,  7, 11, 16,  6,  4,  4,  7,  4,  // 20
       7, 10, 13,  6, 11, 11, 10,  4,  7, 11, 13,  6,  4,  4,  7,  4,  // 30
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // 40
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // 50
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // 60
       7,  7,  7,  7,  7,  7,  4,  7,  4,  4,  4,  4,  4,  4,  7,  4,  // 70
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // 80
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // 90
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // A0
       4,  4,  4,  4,  4,  4,  7,  4,  4,  4,  4,  4,  4,  4,  7,  4,  // B0
       5, 10, 10, 10, 10, 11,  7, 11,  5, 10, 10,  4, 10, 17,  7, 11,  // C0
       5, 10, 10, 11, 10, 11,  7, 11,  5,  4, 10, 11, 10,  4,  7, 11,  // D0
       5, 10, 10, 19, 10, 11,  7, 11,  5,  4, 10,  4, 10,  4,  7, 11,  // E0
       5, 10, 10,  4, 10, 11,  7, 11,  5,  6, 10,  4, 10,  4,  7, 11,  // F0
};

// Behind ED, the rows 40 to 70; the other instructions there are the block instructions and idle ones.
constexpr std::array<std::uint8_t, 64> kExtended{
    // 0   1   2   3   4   5   6   7   8   9   A   B   C   D   E   F
      12, 12, 15, 20,  8, 14,  8,  9, 12, 12, 15, 20,  8, 14,  8,  9,  // 40
      12, 12, 15, 20,  8, 14,  8,  9, 12, 12, 15, 20,  8, 14,  8,  9,  // 50
      12, 12, 15, 20,  8, 14,  8, 18, 12, 12, 15, 20,  8, 14,  8, 18,  // 60
      12, 12, 15, 20,  8, 14,  8,  8, 12, 12, 15, 20,  8, 14,  8,  8,  // 70
};
// clang-format on

constexpr Time fixed(unsigned states) {
    return {states, states};
}

/// What a condition that holds adds to the time.
constexpr unsigned extraWhenTaken(std::uint8_t opcode) {
    if (opcode == 0x10 || (opcode & 0xE7U) == 0x20) return 5;  // djnz, jr cc
    if ((opcode & 0xC7U) == 0xC0) return 6;                    // ret cc
    if ((opcode & 0xC7U) == 0xC4) return 7;                    // call cc
    return 0;
}

constexpr Time plainTime(std::uint8_t opcode) {
    const unsigned states = kPlain[opcode];
    return {states + extraWhenTaken(opcode), states};
}

constexpr bool usesMemory(std::uint8_t opcode) {
    return (opcode & 7U) == 6;
}

constexpr Time bitTime(std::uint8_t opcode) {
    const bool onlyTests = (opcode & 0xC0U) == 0x40;
    if (!usesMemory(opcode)) return fixed(8);
    return fixed(onlyTests ? 12 : 15);
}

constexpr Time extendedTime(std::uint8_t opcode) {
    if (opcode >= 0x40 && opcode < 0x80) return fixed(kExtended[opcode - 0x40U]);
    const bool block = (opcode & 0xE4U) == 0xA0;
    if (!block) return fixed(8);
    const bool repeats = (opcode & 0x10U) != 0;
    return {repeats ? 21U : 16U, 16};
}

/// Behind DD or FD: as without it, and four more for the prefix. Reaching (ix+d) takes longer than (hl).
constexpr Time indexedTime(std::uint8_t opcode) {
    constexpr std::uint8_t kHalt = 0x76;
    if (opcode == 0x34 || opcode == 0x35) return fixed(23);  // inc, dec (ix+d)
    if (opcode == 0x36) return fixed(19);                    // ld (ix+d),n
    const bool loads = opcode >= 0x40 && opcode < 0x80 && (usesMemory(opcode) || (opcode & 0xF8U) == 0x70);
    const bool computes = opcode >= 0x80 && opcode < 0xC0 && usesMemory(opcode);
    if ((loads && opcode != kHalt) || computes) return fixed(19);
    Time time = plainTime(opcode);
    time += fixed(4);
    return time;
}

constexpr Time indexedBitTime(std::uint8_t opcode) {
    const bool onlyTests = (opcode & 0xC0U) == 0x40;
    return fixed(onlyTests ? 20 : 23);
}

}  // namespace

Time timeOf(std::span<const std::uint8_t> instruction) {
    if (instruction.empty()) return {};
    const auto at = [&](std::size_t index) {
        return index < instruction.size() ? instruction[index] : std::uint8_t{0};
    };
    switch (instruction.front()) {
        case kBitPrefix:
            return bitTime(at(1));
        case kExtendedPrefix:
            return extendedTime(at(1));
        case kIxPrefix:
        case kIyPrefix:
            return at(1) == kBitPrefix ? indexedBitTime(at(3)) : indexedTime(at(1));
        default:
            return plainTime(instruction.front());
    }
}

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// What the pieces of a line of Z80 source are to its reader.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kav {

/// What a piece of source is to its reader.
enum class Z80Part : std::uint8_t {
    Plain,
    Mnemonic,
    Register,  ///< or a condition
    Directive,
    Number,
    String,  ///< or a character, or a file's name
    Comment,
    Label,  ///< where it is defined, not where it is used
};

inline constexpr std::size_t kZ80Parts = 8;

/// A piece of a line, from byte `begin` up to but not including byte `end`.
struct Z80Token {
    std::size_t begin = 0;
    std::size_t end = 0;
    Z80Part part = Z80Part::Plain;
};

/// The pieces of the line in their order; those that would be plain are left out. The line comes without its
/// line end and may hold any bytes. Which words are mnemonics, registers and directives is what the
/// assembler says.
[[nodiscard]] std::vector<Z80Token> z80PartsOf(std::string_view line);

}  // namespace kav

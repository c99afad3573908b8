// SPDX-License-Identifier: GPL-3.0-or-later
// What each character may be in a line of assembly source.
#pragma once

#include "runtime/ascii_case.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kav::assembler {

/// The parts a character can play; a character may play several.
enum CharacterPart : std::uint8_t {
    kBlankCharacter = 1,
    kNameStart = 2,
    kNamePart = 4,
    kDigit = 8,
};

/// True when the texts are equal but for the case of ASCII letters.
[[nodiscard]] bool equalIgnoringCase(std::string_view a, std::string_view b);

/// The value of a digit in any radix up to 16, or -1.
[[nodiscard]] constexpr int digitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const char lower = lowered(c);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Looks characters up. A table of its own for each pass, since a source may choose a further character
/// that local labels begin with.
class CharacterTable {
  public:
    constexpr CharacterTable() {
        parts_[' '] = parts_['\t'] = parts_['\v'] = parts_['\f'] = parts_['\r'] = kBlankCharacter;
        for (char c = 'a'; c <= 'z'; ++c)
            parts_[index(c)] = kNameStart | kNamePart;
        for (char c = 'A'; c <= 'Z'; ++c)
            parts_[index(c)] = kNameStart | kNamePart;
        for (char c = '0'; c <= '9'; ++c)
            parts_[index(c)] = kDigit | kNamePart;
        parts_['_'] = kNameStart | kNamePart;
        parts_['.'] = kNamePart;
    }

    [[nodiscard]] constexpr bool isBlank(char c) const { return has(c, kBlankCharacter); }
    [[nodiscard]] constexpr bool isNameStart(char c) const { return has(c, kNameStart); }
    [[nodiscard]] constexpr bool isNamePart(char c) const { return has(c, kNamePart); }
    [[nodiscard]] constexpr bool isDigit(char c) const { return has(c, kDigit); }

    /// Lets names begin with `c` too.
    void addNameStart(char c) { parts_[index(c)] |= kNameStart | kNamePart; }

    /// The position behind the name that begins at `from`.
    [[nodiscard]] constexpr std::size_t endOfName(std::string_view text, std::size_t from) const {
        while (from < text.size() && isNamePart(text[from]))
            ++from;
        return from;
    }

    /// The first position from `from` on that holds no blank.
    [[nodiscard]] constexpr std::size_t skipBlanks(std::string_view text, std::size_t from) const {
        while (from < text.size() && isBlank(text[from]))
            ++from;
        return from;
    }

  private:
    static constexpr std::size_t index(char c) { return static_cast<unsigned char>(c); }
    [[nodiscard]] constexpr bool has(char c, CharacterPart part) const {
        return (parts_[index(c)] & part) != 0;
    }

    std::array<std::uint8_t, 256> parts_{};
};

/// The table that holds as long as no source has changed it.
inline constexpr CharacterTable kCharacters;

}  // namespace kav::assembler

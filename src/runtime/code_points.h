// SPDX-License-Identifier: GPL-3.0-or-later
// The code points of UTF-8 text, with their places in bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

/// One character of a text.
struct CodePoint {
    char32_t value = 0;
    std::size_t length = 1;  ///< in bytes
};

/// Added to the value of a byte that belongs to no UTF-8 sequence, so that it equals no code point.
inline constexpr char32_t kStrayByteBase = 0x110000;

/// The code point that begins at the byte offset `at`, which must lie within the text. A byte that begins no
/// whole sequence is a character of its own.
[[nodiscard]] CodePoint codePointAt(std::string_view text, std::size_t at);

/// The first offset from `at` on that lies on no character's inside; the text's length at most.
[[nodiscard]] std::size_t characterStart(std::string_view text, std::size_t at);

/// The first `count` code points of UTF-8 text; a byte that belongs to no sequence counts as one.
[[nodiscard]] std::string firstCharacters(std::string_view text, std::size_t count);

/// The number of code points in UTF-8 text, counted as in firstCharacters.
[[nodiscard]] std::size_t characterCount(std::string_view text);

}  // namespace kav

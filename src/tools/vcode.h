// SPDX-License-Identifier: GPL-3.0-or-later
// VCode: text compressed by giving frequent pairs of characters one byte each.
#pragma once

#include "tools/string_converter.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// The most characters (code points) that are converted at a time.
inline constexpr std::size_t kVCodeLimit = 79999;

/// The pairs of VCode. The entry at index j (from 0) has the code 129 + j. The repeated pairs and the
/// empty entry, which never matches, belong to the scheme.
inline constexpr std::array<std::string_view, 102> kVCodePairs{
    "is", "nt", "he",                                            // $81
    "ei", "et", "ea", "ay", "as", "or", "nd", "it", "er", "in",  // $84
    "on", "pa", "ar", "um", "el", "e.", "ic", "e!", "ey", "ss",  // $8E
    "mm", "en", "ll", "ro", "od", "hi", "go", "at", "to", "ad",  // $98
    "am", "an", "ax", "be", "by", "cc", "co", "s.", "g.", "t:",  // $A2
    "do", "ha", "he", "hp", "id", "if", "me", "io", "se", "op",  // $AC
    "sh", "ng", "wa", "xt", "ta", "..", "ib", "rt", "e?", "r.",  // $B6
    "pi", "ma", "th", "Mi", "Bu", "Ex", "Fi", "Te", "Ca", "lc",  // $C0
    "ul", "li", "br", "Al", "ex", "Ro", "pe", "r.", "Er", "nc",  // $CA
    "e ", "s ", "r ", "Da", "n ", "",   "gl", "de", "Ja", "n ",  // $D4
    "Ko", "va", "cs", "te", "st", "Th", "lo", "Se", "He",        // $DE
};

/// The joined text as VCode data lines under three comment lines, CR LF between the lines and none behind
/// the last; nothing when the text is over the limit and the user declines to have it cut. A pair whose
/// second character begins a pair further down the table encodes that character twice: programs that
/// unpack VCode expect it. Raises failure 5 for an empty text.
[[nodiscard]] std::optional<std::string> vcodeConversion(std::string_view joined, LineStart lineStart,
                                                         const AskTruncate& askTruncate);

}  // namespace kav

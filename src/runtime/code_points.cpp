// SPDX-License-Identifier: GPL-3.0-or-later
// The code points of UTF-8 text.
#include "runtime/code_points.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::size_t kLongestSequence = 4;

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// The length that a sequence beginning with `lead` has, 1 for every byte that begins none.
std::size_t announcedLength(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

/// The bits of the code point that a lead byte carries.
char32_t leadBits(unsigned char lead, std::size_t length) {
    const unsigned mask = 0x7FU >> length;
    return lead & mask;
}

}  // namespace

CodePoint codePointAt(std::string_view text, std::size_t at) {
    const auto byteAt = [&](std::size_t offset) { return static_cast<unsigned char>(text[offset]); };
    const unsigned char lead = byteAt(at);
    if (lead < 0x80) return {lead, 1};

    const CodePoint stray{kStrayByteBase + lead, 1};
    const std::size_t length = announcedLength(lead);
    if (length == 1 || length > text.size() - at) return stray;
    char32_t value = leadBits(lead, length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char byte = byteAt(at + i);
        if (!isContinuation(byte)) return stray;
        value = (value << 6U) | (byte & 0x3FU);
    }
    return {value, length};
}

std::size_t characterStart(std::string_view text, std::size_t at) {
    if (at >= text.size()) return text.size();
    // A sequence that covers `at` begins with a lead byte, which is the inside of no other.
    for (std::size_t back = 1; back < kLongestSequence && back <= at; ++back) {
        const std::size_t length = codePointAt(text, at - back).length;
        if (length > back) return at - back + length;
    }
    return at;
}

std::string firstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += codePointAt(text, end).length;
    return std::string(text.substr(0, end));
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(codePointAt(text, 0).length);
    return count;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as assembly source writes them.
#include "assembler/number.h"

#include "assembler/characters.h"
#include "runtime/ascii_case.h"

namespace kav::assembler {

namespace {

/// The digits of [begin, end) in `radix`; `resume` is where reading goes on.
Number fromDigits(std::string_view digits, unsigned radix, std::size_t resume) {
    if (digits.empty()) return {NumberKind::kInvalid, 0, resume};
    std::uint64_t value = 0;
    for (const char c : digits) {
        const int digit = digitValue(c);
        if (digit < 0 || static_cast<unsigned>(digit) >= radix) return {NumberKind::kInvalid, 0, resume};
        value = value * radix + static_cast<unsigned>(digit);
        if (value > 0xFFFFFFFFU) return {NumberKind::kTooLarge, 0, resume};
    }
    return {NumberKind::kNumber, static_cast<std::uint32_t>(value), resume};
}

std::size_t endOfAlphanumerics(std::string_view text, std::size_t from) {
    while (from < text.size() && kCharacters.isNamePart(text[from]) && text[from] != '.' &&
           text[from] != '_') {
        ++from;
    }
    return from;
}

Number afterPrefix(std::string_view text, std::size_t position, unsigned radix) {
    const std::size_t begin = position + 1;
    if (begin >= text.size() || digitValue(text[begin]) < 0) return {};
    if (radix != 16 && !kCharacters.isDigit(text[begin])) return {};
    const std::size_t end = endOfAlphanumerics(text, begin);
    return fromDigits(text.substr(begin, end - begin), radix, end);
}

bool hasPrefix(std::string_view word, char letter) {
    return word.size() > 2 && word[0] == '0' && lowered(word[1]) == letter;
}

Number fromWord(std::string_view word, std::size_t end, bool otherForms) {
    const std::string_view stem = word.substr(0, word.size() - 1);
    switch (lowered(word.back())) {
        case 'h':
            return fromDigits(stem, 16, end);
        case 'o':
            return fromDigits(stem, 8, end);
        case 'd':
            return fromDigits(stem, 10, end);
        case 'b':
            return fromDigits(stem, 2, end);
        default:
            break;
    }
    if (otherForms && hasPrefix(word, 'x')) return fromDigits(word.substr(2), 16, end);
    if (otherForms && hasPrefix(word, 'b')) return fromDigits(word.substr(2), 2, end);
    return fromDigits(word, 10, end);
}

}  // namespace

Number readNumber(std::string_view text, std::size_t position, bool otherForms) {
    if (position >= text.size()) return {};
    switch (text[position]) {
        case '$':
            return afterPrefix(text, position, 16);
        case '%':
            return afterPrefix(text, position, 2);
        case '@':
            return afterPrefix(text, position, 8);
        default:
            break;
    }
    if (!kCharacters.isDigit(text[position])) return {};
    const std::size_t end = endOfAlphanumerics(text, position);
    const std::string_view word = text.substr(position, end - position);
    // 0x1D and 0x1B end in letters that are also radix marks.
    if (otherForms && hasPrefix(word, 'x')) return fromDigits(word.substr(2), 16, end);
    return fromWord(word, end, otherForms);
}

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// What the operands of an instruction are.
#include "assembler/operand.h"

#include "assembler/text.h"
#include "assembler/word_key.h"
#include "assembler/words.h"
#include "runtime/ascii_case.h"

namespace kav::assembler {

namespace {

constexpr std::uint8_t kIx = 0xDD;
constexpr std::uint8_t kIy = 0xFD;
constexpr std::uint8_t kMemoryCode = 6;  // (hl) among the registers
constexpr std::size_t kLongestWord = 3;  // of the processor's own, which end at "ixh" and "af'"

Operand plain(std::uint32_t classes, int code, std::uint8_t indexPrefix = 0) {
    Operand operand;
    operand.classes = classes;
    operand.code = static_cast<std::uint8_t>(code);
    operand.indexPrefix = indexPrefix;
    return operand;
}

/// A condition. Its name may also be a label's.
Operand condition(int number) {
    Operand operand = plain(kCondition | kValue | (number < 4 ? kShortCondition : 0U), 0);
    operand.condition = static_cast<std::uint8_t>(number);
    return operand;
}

Operand registerC() {
    Operand operand = plain(kRegC | kCondition | kShortCondition, 1);
    operand.condition = 3;
    return operand;
}

/// The operand that a word is, when it is a word of the processor; otherwise a value.
Operand fromWord(std::string_view word) {
    if (word.size() > kLongestWord) return plain(kValue, 0);
    // clang-format off
    switch (wordKey(word)) {
        case wordKey("b"):   return plain(kRegBde, 0);
        case wordKey("c"):   return registerC();
        case wordKey("d"):   return plain(kRegBde, 2);
        case wordKey("e"):   return plain(kRegBde, 3);
        case wordKey("h"):   return plain(kRegHl, 4);
        case wordKey("l"):   return plain(kRegHl, 5);
        case wordKey("a"):   return plain(kRegA, 7);
        case wordKey("ixh"): return plain(kRegHalf, 4, kIx);
        case wordKey("ixl"): return plain(kRegHalf, 5, kIx);
        case wordKey("iyh"): return plain(kRegHalf, 4, kIy);
        case wordKey("iyl"): return plain(kRegHalf, 5, kIy);
        case wordKey("f"):   return plain(kRegF | kValue, 6);
        case wordKey("i"):   return plain(kRegI | kValue, 0);
        case wordKey("r"):   return plain(kRegR | kValue, 0);
        case wordKey("bc"):  return plain(kPairBc, 0);
        case wordKey("de"):  return plain(kPairDe, 1);
        case wordKey("hl"):  return plain(kPairHl, 2);
        case wordKey("sp"):  return plain(kPairSp, 3);
        case wordKey("af"):  return plain(kPairAf, 3);
        case wordKey("af'"): return plain(kPairAfShadow, 3);
        case wordKey("ix"):  return plain(kPairIndex, 2, kIx);
        case wordKey("iy"):  return plain(kPairIndex, 2, kIy);
        case wordKey("nz"):  return condition(0);
        case wordKey("z"):   return condition(1);
        case wordKey("nc"):  return condition(2);
        case wordKey("po"):  return condition(4);
        case wordKey("pe"):  return condition(5);
        case wordKey("p"):   return condition(6);
        case wordKey("m"):   return condition(7);
        default:             return plain(kValue, 0);
    }
    // clang-format on
}

/// True when the parenthesis that the text begins with is closed by the one that it ends with.
bool isEnclosed(std::string_view text) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')') return false;
    int depth = 0;
    std::size_t position = 0;
    while (position < text.size()) {
        const char c = text[position];
        if (c == '"' || c == '\'') {
            position = behindQuoted(text, position);
            continue;
        }
        if (c == '(') ++depth;
        if (c == ')' && --depth == 0) return position + 1 == text.size();
        ++position;
    }
    return false;
}

Operand atIndexed(std::uint8_t prefix, std::string_view displacement) {
    if (!displacement.empty() && displacement.front() == '+') displacement.remove_prefix(1);
    Operand operand = plain(kAtIndexed, kMemoryCode, prefix);
    operand.expression = displacement;
    return operand;
}

Operand fromEnclosed(std::string_view inner) {
    switch (inner.size() == 1 || inner.size() == 2 ? wordKey(inner) : 0) {
        case wordKey("hl"):
            return plain(kAtHl, kMemoryCode);
        case wordKey("bc"):
            return plain(kAtBc, 0);
        case wordKey("de"):
            return plain(kAtDe, 0);
        case wordKey("sp"):
            return plain(kAtSp, 0);
        case wordKey("c"):
            return plain(kAtC, 0);
        case wordKey("ix"):
            return plain(kAtIndex | kAtIndexed, kMemoryCode, kIx);
        case wordKey("iy"):
            return plain(kAtIndex | kAtIndexed, kMemoryCode, kIy);
        default:
            break;
    }
    if (inner.size() > 2 && lowered(inner[0]) == 'i') {
        const char which = lowered(inner[1]);
        const std::string_view rest = trimmed(inner.substr(2));
        const bool signedRest = !rest.empty() && (rest.front() == '+' || rest.front() == '-');
        if (signedRest && (which == 'x' || which == 'y')) return atIndexed(which == 'x' ? kIx : kIy, rest);
    }
    Operand operand = plain(kAtAddress, 0);
    operand.expression = inner;
    return operand;
}

}  // namespace

bool isRegisterOrCondition(std::string_view word) {
    return (fromWord(word).classes & ~std::uint32_t{kValue}) != 0;
}

Operand classified(std::string_view text) {
    Operand operand;
    if (isEnclosed(text)) {
        operand = fromEnclosed(trimmed(text.substr(1, text.size() - 2)));
    } else {
        operand = fromWord(text);
        if ((operand.classes & kValue) != 0) operand.expression = text;
    }
    operand.text = text;
    return operand;
}

}  // namespace kav::assembler

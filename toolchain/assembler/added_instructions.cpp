// SPDX-License-Identifier: GPL-3.0-or-later
// Instructions that a source adds with .addinstr.
#include "assembler/added_instructions.h"

#include "assembler/characters.h"
#include "assembler/number.h"
#include "assembler/text.h"
#include "runtime/ascii_case.h"

#include <optional>

namespace kav::assembler {

namespace {

constexpr int kLargestSize = 8;
constexpr std::size_t kMostDigits = 16;  // of an opcode of that size

std::string_view nextWord(std::string_view& text) {
    text = trimmed(text);
    std::size_t end = 0;
    while (end < text.size() && !kCharacters.isBlank(text[end])) {
        // Blanks may stand inside quotes: "" is how a definition says that there are no arguments.
        end = text[end] == '"' ? std::min(behindQuoted(text, end), text.size()) : end + 1;
    }
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(end);
    return word;
}

std::optional<std::vector<std::uint8_t>> opcodeBytes(std::string_view digits) {
    if (digits.empty() || digits.size() % 2 != 0 || digits.size() > kMostDigits) return std::nullopt;
    std::vector<std::uint8_t> bytes;
    // The byte that comes first in memory stands last, as in a number.
    for (std::size_t i = digits.size(); i > 0; i -= 2) {
        const int high = digitValue(digits[i - 2]);
        const int low = digitValue(digits[i - 1]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
    }
    return bytes;
}

std::optional<ArgumentRule> ruleCalled(std::string_view word) {
    if (equalIgnoringCase(word, "NOP") || equalIgnoringCase(word, "NOTOUCH")) return ArgumentRule::kPlain;
    if (equalIgnoringCase(word, "R1")) return ArgumentRule::kRelative;
    if (equalIgnoringCase(word, "ZBIT")) return ArgumentRule::kBit;
    if (equalIgnoringCase(word, "ZIX") || equalIgnoringCase(word, "ZIDX")) return ArgumentRule::kDisplacement;
    return std::nullopt;
}

std::string withoutBlanks(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (!kCharacters.isBlank(c)) result += lowered(c);
    }
    return result;
}

/// Matches operands against a pattern; the text at each `*` goes to `arguments`. A `*` takes as much as it
/// can: up to the next comma outside parentheses, or the closing parenthesis that the pattern has.
bool matches(std::string_view pattern, std::string_view operands, std::vector<std::string_view>& arguments) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        at = kCharacters.skipBlanks(operands, at);
        if (pattern[i] != '*') {
            if (at >= operands.size() || lowered(operands[at]) != pattern[i]) return false;
            ++at;
            continue;
        }
        const char stop = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        int depth = 0;
        const std::size_t begin = at;
        while (at < operands.size() && !(depth == 0 && (operands[at] == stop || operands[at] == ','))) {
            if (operands[at] == '(') ++depth;
            if (operands[at] == ')') --depth;
            ++at;
        }
        const std::string_view argument = trimmed(operands.substr(begin, at - begin));
        if (argument.empty()) return false;
        arguments.push_back(argument);
    }
    return kCharacters.skipBlanks(operands, at) == operands.size();
}

}  // namespace

std::string AddedInstructions::add(std::string_view definition) {
    std::string_view rest = definition;
    const std::string mnemonic = lowered(nextWord(rest));
    std::string pattern = withoutBlanks(nextWord(rest));
    if (pattern == "\"\"") pattern.clear();
    const std::string_view opcodeWord = nextWord(rest);
    const std::string_view sizeWord = nextWord(rest);
    const std::string_view ruleWord = nextWord(rest);
    const std::optional<std::vector<std::uint8_t>> opcode = opcodeBytes(opcodeWord);
    if (mnemonic.empty() || !opcode) {
        return "Invalid token where value expected: an opcode in pairs of hexadecimal digits, not " +
               shown(opcodeWord);
    }
    const Number size = readNumber(sizeWord, 0, false);
    const auto least = static_cast<std::uint32_t>(opcode->size());
    if (size.kind != NumberKind::kNumber || size.value < least || size.value > kLargestSize) {
        return "Range of argument exceeded: the size " + shown(sizeWord) + " (" + std::to_string(least) +
               " to " + std::to_string(kLargestSize) + " is possible)";
    }
    const std::optional<ArgumentRule> rule = ruleWord.empty() ? ArgumentRule::kPlain : ruleCalled(ruleWord);
    if (!rule) return "Unknown token: the rule " + shown(ruleWord) + " (NOP, R1, ZBIT, ZIX, ZIDX are known)";
    forms_[mnemonic].push_back({pattern, *opcode, static_cast<int>(size.value), *rule});
    return {};
}

AddedMatch AddedInstructions::find(std::string_view mnemonic, std::string_view operands) const {
    const auto found = forms_.find(lowered(mnemonic));
    if (found == forms_.end()) return {};
    for (const AddedInstruction& form : found->second) {
        std::vector<std::string_view> arguments;
        if (matches(form.pattern, operands, arguments)) return {&form, std::move(arguments)};
    }
    return {};
}

bool AddedInstructions::knows(std::string_view mnemonic) const {
    return forms_.find(lowered(mnemonic)) != forms_.end();
}

std::vector<std::string> AddedInstructions::mnemonics() const {
    std::vector<std::string> names;
    for (const auto& [name, forms] : forms_)
        names.push_back(name);
    return names;
}

}  // namespace kav::assembler

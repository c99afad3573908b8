// SPDX-License-Identifier: GPL-3.0-or-later
// What an instruction takes, in words, for messages.
#include "assembler/expected_operands.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <vector>

namespace kav::assembler {

namespace {

constexpr std::size_t kMostForms = 8;

/// The names of the operand classes, by the number of their bit.
constexpr std::string_view kClassNames[] = {
    "a",    "c",    "b",    "h",      "ixh",  "f",      "i",    "r", "bc", "de",
    "hl",   "sp",   "af",   "af'",    "ix",   "(hl)",   "(bc)", "(de)", "(sp)", "(c)",
    "(ix)", "(ix+d)", "(nn)", "n", "nz", "nz",
};

constexpr std::uint32_t kAllRegisters = kRegA | kRegC | kRegBde | kRegHl;

/// The word for an operand: that of its first class, and of all eight-bit registers together "r".
std::string wordFor(std::uint32_t classes) {
    if ((classes & kAllRegisters) == kAllRegisters) return "r";
    return std::string(kClassNames[static_cast<std::size_t>(std::countr_zero(classes))]);
}

std::string wordsFor(const InstructionForm& form) {
    std::string words;
    for (const std::uint32_t classes : form.operands) {
        if (classes == 0) break;
        words += (words.empty() ? "" : ",") + wordFor(classes);
    }
    return words.empty() ? "none" : words;
}

}  // namespace

std::string expectedOperands(std::span<const InstructionForm> forms) {
    std::vector<std::string> all;
    for (const InstructionForm& form : forms) {
        const std::string words = wordsFor(form);
        if (std::find(all.begin(), all.end(), words) == all.end()) all.push_back(words);
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(all.size(), kMostForms); ++i) {
        if (i > 0) text += i + 1 == all.size() ? " or " : ", ";
        text += all[i];
    }
    if (all.size() > kMostForms) text += ", ...";
    return " (expected: " + text + ")";
}

}  // namespace kav::assembler

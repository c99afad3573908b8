// SPDX-License-Identifier: GPL-3.0-or-later
// What an instruction takes, in words, for messages.
#include "assembler/expected_operands.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <vector>

namespace kav::assembler {

namespace {

constexpr std::size_t kMostForms = 5;

/// The names of the operand classes, by the number of their bit.
constexpr std::string_view kClassNames[] = {
    "a",         "c",      "b/d/e", "h/l", "ixh/ixl/iyh/iyl", "f",         "i",    "r",    "bc",   "de",
    "hl",        "sp",     "af",    "af'", "ix/iy",           "(hl)",      "(bc)", "(de)", "(sp)", "(c)",
    "(ix)/(iy)", "(ix+d)", "(nn)",  "n",   "condition",       "condition",
};

constexpr std::uint32_t kAllRegisters = kRegA | kRegC | kRegBde | kRegHl;

/// The words for what an operand can be; all eight-bit registers together are "r8".
std::string wordFor(std::uint32_t classes) {
    if ((classes & kPairAfShadow) != 0) return "af'";
    std::string words;
    if ((classes & kAllRegisters) == kAllRegisters) {
        words = "r8";
        classes &= ~kAllRegisters;
    }
    for (; classes != 0; classes &= classes - 1) {
        words += words.empty() ? "" : "/";
        words += kClassNames[static_cast<std::size_t>(std::countr_zero(classes))];
    }
    return words;
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

std::string expectedOperands(std::span<const InstructionForm> forms, std::uint32_t firstClasses) {
    const auto begins = [&](const InstructionForm& form) { return (form.operands[0] & firstClasses) != 0; };
    const bool narrowed = std::any_of(forms.begin(), forms.end(), begins);
    std::vector<std::string> all;
    for (const InstructionForm& form : forms) {
        if (narrowed && !begins(form)) continue;
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

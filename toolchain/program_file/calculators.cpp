// SPDX-License-Identifier: GPL-3.0-or-later
// The calculators' names, limits and rules for program names.
#include "program_file/calculators.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kav {

namespace {

constexpr std::size_t kLongestName = 8;

struct CalculatorFacts {
    Calculator calculator;
    const char* name;
    const char* extension;
    unsigned programStart;  // where programs run
    unsigned symbolTable;   // where the table of variables begins
};

constexpr std::array<CalculatorFacts, 2> kCalculators{{
    {Calculator::Ti83, "TI-83", ".83p", 0x9327, 0xFE6E},
    {Calculator::Ti83Plus, "TI-83 Plus", ".8xp", 0x9D95, 0xFE66},
}};

const CalculatorFacts& factsOf(Calculator calculator) {
    return *std::find_if(kCalculators.begin(), kCalculators.end(),
                         [&](const CalculatorFacts& facts) { return facts.calculator == calculator; });
}

bool isLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

[[noreturn]] void throwBadName(std::string_view name, const std::string& why) {
    throw ProgramFileError("Program name \"" + printable(name) + "\" " + why +
                           ": a program name is 1 to 8 letters and digits and begins with a letter");
}

}  // namespace

std::string displayName(Calculator calculator) {
    return factsOf(calculator).name;
}

std::string programExtension(Calculator calculator) {
    return factsOf(calculator).extension;
}

std::size_t largestProgram(Calculator calculator) {
    const CalculatorFacts& facts = factsOf(calculator);
    return facts.symbolTable - facts.programStart - kLengthWord;
}

std::string calculatorName(std::string_view programName) {
    if (programName.empty()) throwBadName(programName, "is empty");
    if (programName.size() > kLongestName) throwBadName(programName, "is too long");
    if (!isLetter(programName.front())) throwBadName(programName, "does not begin with a letter");
    std::string name;
    for (const char character : programName) {
        if (!isLetter(character) && !isDigit(character)) {
            throwBadName(programName, "holds \"" + printable({&character, 1}) + "\"");
        }
        const bool small = character >= 'a' && character <= 'z';
        name += static_cast<char>(small ? character - 'a' + 'A' : character);
    }
    return name;
}

std::string printable(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character >= ' ' && character <= '~') {
            result += character;
            continue;
        }
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned char>(character));
        result += escaped;
    }
    return result;
}

}  // namespace kav

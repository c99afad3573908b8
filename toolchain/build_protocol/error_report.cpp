// SPDX-License-Identifier: GPL-3.0-or-later
// Merges the errors of several calculators and writes the end of the listing.
#include "build_protocol/error_report.h"

#include "runtime/lines.h"

#include <algorithm>
#include <cstdio>

namespace kav {

namespace {

constexpr std::string_view kErrorMark = "temp";
constexpr int kLastLine = 9999;

/// A line break inside a message would begin a line of its own, and with it a task.
std::string oneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char character) { return character == '\r' || character == '\n'; }, ' ');
    return text;
}

std::string errorLine(const BuildError& error) {
    char place[32];
    std::snprintf(place, sizeof place, "temp.z80 line %04d: ", std::clamp(error.line, 1, kLastLine));
    std::string line = place;
    if (error.line > kLastLine) line += "line " + std::to_string(error.line) + ": ";
    return line + oneLine(error.message);
}

bool holds(const std::vector<BuildError>& errors, const BuildError& error) {
    return std::find(errors.begin(), errors.end(), error) != errors.end();
}

/// " (TI-83 only)" when not all calculators have the error.
std::string limitation(const std::vector<CalculatorErrors>& perCalculator, const BuildError& error) {
    std::string names;
    bool all = true;
    for (const CalculatorErrors& one : perCalculator) {
        if (!holds(one.errors, error)) {
            all = false;
            continue;
        }
        names += (names.empty() ? "" : ", ") + displayName(one.calculator);
    }
    return all ? "" : " (" + names + " only)";
}

}  // namespace

std::vector<BuildError> mergedErrors(const std::vector<CalculatorErrors>& perCalculator) {
    std::vector<BuildError> found;
    for (const CalculatorErrors& one : perCalculator) {
        for (const BuildError& error : one.errors) {
            if (!holds(found, error)) found.push_back(error);
        }
    }
    for (BuildError& error : found)
        error.message += limitation(perCalculator, error);
    std::stable_sort(found.begin(), found.end(),
                     [](const BuildError& a, const BuildError& b) { return a.line < b.line; });
    return found;
}

std::string errorBlock(const std::vector<BuildError>& errors) {
    if (errors.empty()) return {};
    std::string block = "temp.z80 has " + std::to_string(errors.size());
    block += errors.size() == 1 ? " error:" : " errors:";
    for (const BuildError& error : errors) {
        block += kCrLf;
        block += errorLine(error);
    }
    block += kCrLf;
    return block;
}

std::string withoutErrorBlock(const std::string& listing) {
    std::string result;
    result.reserve(listing.size());
    for (const std::string_view line : linesOf(listing)) {
        if (line.starts_with(kErrorMark)) continue;
        result += line;
        result += kCrLf;
    }
    return result;
}

}  // namespace kav

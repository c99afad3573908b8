// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as the program writes them into text and reads them back.
#include "runtime/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace kav {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view withoutLeadingBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

struct Reading {
    double value = 0;
    std::string_view rest;
    bool found = false;
};

Reading readNumber(std::string_view text) {
    text = withoutLeadingBlanks(text);
    std::string_view digits = text;
    // from_chars knows no plus sign, and would take "inf" and "nan", which are words here.
    if (digits.starts_with('+')) digits.remove_prefix(1);
    const std::string_view unsignedPart = digits.starts_with('-') ? digits.substr(1) : digits;
    const bool signTwice = text.starts_with('+') && digits.starts_with('-');
    const bool numeric = !unsignedPart.empty() &&
                         (unsignedPart[0] == '.' || (unsignedPart[0] >= '0' && unsignedPart[0] <= '9'));
    if (!numeric || signTwice) return {0, text, false};

    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument) return {0, text, false};
    const std::string_view rest = digits.substr(static_cast<std::size_t>(end - digits.data()));
    if (error == std::errc::result_out_of_range) value = 0;
    return {value, rest, true};
}

}  // namespace

double numericValue(std::string_view text) {
    return readNumber(text).value;
}

std::optional<double> wholeNumber(std::string_view text) {
    const Reading reading = readNumber(text);
    if (!reading.found || !withoutLeadingBlanks(reading.rest).empty()) return std::nullopt;
    return reading.value;
}

bool flagValue(std::string_view text) {
    return numericValue(text) == 1.0;
}

std::string plainDecimal(double value) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    if (error != std::errc()) return "0";
    return {buffer.data(), end};
}

std::string printForm(double value) {
    const std::string digits = plainDecimal(value);
    return (digits.starts_with('-') ? digits : " " + digits) + " ";
}

std::int16_t roundedInt16(double value) {
    if (std::isnan(value)) return 0;
    constexpr double kLowest = std::numeric_limits<std::int16_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::nearbyint(std::clamp(value, kLowest, kHighest)));
}

}  // namespace kav

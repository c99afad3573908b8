// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that tell their number, and whether they are whole.
#pragma once

#include <charconv>
#include <optional>
#include <string>

namespace kav::test {

/// The text of that number: each has a length and a filling of its own, so that no part or mixture of two
/// passes for a whole one.
inline std::string numberedText(int number) {
    const auto length = static_cast<std::size_t>(200000 + number % 97 * 1000);
    return std::to_string(number) + " " + std::string(length, static_cast<char>('a' + number % 26)) + ".";
}

/// The number of a text that is whole, with or without a line end behind it.
inline std::optional<int> numberOf(const std::string& text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    const std::string whole = numberedText(number);
    if (text == whole || text == whole + "\r\n") return number;
    return std::nullopt;
}

}  // namespace kav::test

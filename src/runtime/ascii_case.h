// SPDX-License-Identifier: GPL-3.0-or-later
// Letters in lower case, where only ASCII letters have two cases.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The lower-case form of an ASCII letter, every other character as it is.
[[nodiscard]] constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The text with its ASCII letters in lower case.
[[nodiscard]] inline std::string lowered(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = lowered(c);
    return result;
}

}  // namespace kav

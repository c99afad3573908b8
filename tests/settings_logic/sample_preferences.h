// SPDX-License-Identifier: GPL-3.0-or-later
// A preferences file with a different text on every line.
#pragma once

#include <string>

namespace kav::test {

/// 23 lines, "line 1" and so on, but for the flags on lines 4 to 8, which are off, on, off, on, off.
inline std::string samplePreferences() {
    std::string text;
    for (int number = 1; number <= 23; ++number) {
        if (number >= 4 && number <= 8) {
            text += number % 2 == 0 ? "0\r\n" : " 1 \r\n";
        } else {
            text += "line " + std::to_string(number) + "\r\n";
        }
    }
    return text;
}

}  // namespace kav::test

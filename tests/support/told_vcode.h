// SPDX-License-Identifier: GPL-3.0-or-later
// VCode as its rule is told, step by step and without a thought for speed: what the converter is held
// against.
#pragma once

#include "runtime/code_points.h"
#include "tools/vcode.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace kav::test {

inline std::vector<std::string> charactersOf(std::string_view text) {
    std::vector<std::string> characters;
    while (!text.empty()) {
        characters.push_back(firstCharacters(text, 1));
        text.remove_prefix(characters.back().size());
    }
    return characters;
}

inline std::string hexadecimalEntry(std::size_t code) {
    char entry[8];
    std::snprintf(entry, sizeof entry, ",$%X", static_cast<unsigned>(code));
    return entry;
}

/// The entry of a character that begins no pair.
inline std::string toldCharacter(const std::string& character) {
    for (int code = 65; code <= 123; ++code) {
        if (code == 92) code = 97;
        if (character == std::string(1, static_cast<char>(code))) {
            return hexadecimalEntry(static_cast<std::size_t>(code));
        }
    }
    return ",\"" + character + "\"";
}

/// The characters at a position, counted from 1, and behind it. At the last one there is no pair.
inline std::string pairAt(const std::vector<std::string>& characters, std::size_t position) {
    return position < characters.size() ? characters[position - 1] + characters[position] : "no pair";
}

/// The whole output: every position against all 102 entries in turn. Positions and entries count from 1.
/// The text must not be empty.
inline std::string toldVCode(std::string_view text, const std::string& separator) {
    const std::vector<std::string> s = charactersOf(text);
    std::vector<std::string> lines(1);
    std::size_t pairCount = 0;
    std::size_t passes = 0;
    for (std::size_t i = 1; i <= s.size(); ++i) {
        if (++passes == 16) {
            lines.emplace_back();
            passes = 0;
        }
        bool found = false;
        std::string pair = pairAt(s, i);
        for (std::size_t j = 1; j <= 102; ++j) {
            if (pair != kVCodePairs[j - 1]) continue;
            ++pairCount;
            lines.back() += hexadecimalEntry(128 + j);
            found = true;
            pair = pairAt(s, ++i);
        }
        if (!found) lines.back() += toldCharacter(s[i - 1]);
    }
    std::string data;
    for (const std::string& line : lines)
        data += separator + ".db " + line.substr(1) + "\r\n";
    return ";Compressed with Corwin Haleby's VCode algorithm\r\n;using KAV Compiler's String Converter.\r\n"
           ";Origionally " +
           std::to_string(s.size()) + " bytes, compressed to " + std::to_string(s.size() - pairCount) +
           " bytes.\r\n" + data.substr(0, data.size() - 2);
}

}  // namespace kav::test

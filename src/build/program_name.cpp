// SPDX-License-Identifier: GPL-3.0-or-later
// The question for the program's name, and which names are taken.
#include "build/program_name.h"

#include "runtime/code_points.h"

#include <algorithm>

namespace kav {

namespace {

bool leavesFolder(char c) {
    const auto byte = static_cast<unsigned char>(c);
    constexpr unsigned char kDelete = 127;
    return c == '/' || c == '\\' || c == ':' || byte < ' ' || byte == kDelete;
}

}  // namespace

bool fitsProgramName(std::string_view answer) {
    return characterCount(answer) <= kLongestProgramName;
}

std::string shortenedProgramName(std::string_view answer) {
    return firstCharacters(answer, kLongestProgramName);
}

bool nameStaysInFolder(std::string_view name) {
    if (name == "." || name == "..") return false;
    return std::none_of(name.begin(), name.end(), leavesFolder);
}

}  // namespace kav

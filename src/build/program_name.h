// SPDX-License-Identifier: GPL-3.0-or-later
// The question for the program's name, and which names are taken.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

inline constexpr std::string_view kProgramNameTitle = "Compile Program";
inline constexpr std::string_view kProgramNamePrompt = "Enter Program Name";
inline constexpr std::string_view kProgramNameTooLong = "Program name must 8 chars or less.";
inline constexpr std::size_t kLongestProgramName = 8;

/// One showing of the input box.
struct NameQuestion {
    std::string prompt;
    std::string defaultAnswer;
};

/// The first question, which offers the name that the document was last built with.
[[nodiscard]] NameQuestion firstNameQuestion(std::string_view storedName);

/// True for an answer of at most 8 code points, and so for an empty one.
[[nodiscard]] bool acceptName(std::string_view answer);

/// The question that follows an answer which was too long: it offers the answer's first 8 code points.
[[nodiscard]] NameQuestion nextNameQuestion(std::string_view answer);

/// False for a name that would lead a build's files out of the application folder or break the script's
/// lines: one with a slash, a backslash, a colon or a control character, and the names "." and "..".
[[nodiscard]] bool nameStaysInFolder(std::string_view name);

}  // namespace kav

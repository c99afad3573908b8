// SPDX-License-Identifier: GPL-3.0-or-later
// The question for the program's name, and which names are taken.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

inline constexpr const char* kNameTitle = "Compile Program";
inline constexpr const char* kNamePrompt = "Enter Program Name";
/// The prompt once an answer was too long.
inline constexpr const char* kNameTooLongPrompt = "Program name must 8 chars or less.";
inline constexpr std::size_t kLongestProgramName = 8;

/// True for an answer that is taken at once: one of at most 8 code points, an empty one too.
[[nodiscard]] bool fitsProgramName(std::string_view answer);

/// What the next question offers when an answer was too long: its first 8 code points.
[[nodiscard]] std::string shortenedProgramName(std::string_view answer);

/// False for a name that would lead a build's files out of the application folder or break the script's
/// lines: one with a slash, a backslash, a colon or a control character, and the names "." and "..".
[[nodiscard]] bool nameStaysInFolder(std::string_view name);

}  // namespace kav

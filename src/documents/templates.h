// SPDX-License-Identifier: GPL-3.0-or-later
// The program skeletons that a new document can start from.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kav {

inline constexpr const char* kDescriptionPrompt = "Enter Program Shell Description";
inline constexpr const char* kDescriptionDefault = "TITLE";
inline constexpr const char* kNewKavTitle = "New KAV File";
inline constexpr const char* kNewIonTitle = "New Ion File";

/// The description in the user's answer: its first 25 code points, or nothing when it is empty.
[[nodiscard]] std::optional<std::string> descriptionFrom(std::string_view answer);

/// A program for the KAV shell. The description is inserted as it stands.
[[nodiscard]] std::string kavTemplate(const std::string& description);

/// A program for the Ion shell. The description is inserted as it stands.
[[nodiscard]] std::string ionTemplate(const std::string& description);

}  // namespace kav

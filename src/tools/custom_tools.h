// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own tools: three names and command lines in the preferences file.
#pragma once

#include "settings/preferences_table.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// The boxes of the custom-tools dialog: name and command line of tool 1, then of tools 2 and 3. They are
/// lines 10 to 15 of the preferences file.
using CustomToolBoxes = std::array<std::string, 6>;

/// What the dialog shows when it opens.
[[nodiscard]] CustomToolBoxes customToolBoxes(const PreferencesTable& table);

/// What Ok stores. All other lines stay, the header included.
void storeCustomTools(PreferencesTable& table, const CustomToolBoxes& boxes);

/// The command line that choosing a tool starts; nothing when its name or its command line is empty.
[[nodiscard]] std::optional<std::string> customToolCommand(std::string_view name,
                                                           std::string_view commandLine);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences file: 23 lines whose meaning is their position.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kav {

inline constexpr std::size_t kPreferenceLines = 23;

/// The preferences as the main window uses them.
struct Preferences {
    struct CustomTool {
        std::string name;  ///< empty: the tool is not shown in the menu
        std::string commandLine;

        bool operator==(const CustomTool&) const = default;
    };

    std::string fontName;
    std::int16_t fontSize = 0;  ///< points
    bool make83p = false;
    bool make8xp = false;
    bool showTasm = false;
    bool useInternetExplorer = false;
    bool easterEggs = false;
    std::string browserPath;
    std::array<CustomTool, 3> customTools;
    bool firstRun = false;
    double usageSeconds = 0;
    bool surveyAsked = false;
    std::array<std::string, 4> recentFiles;  ///< most recent first; empty: the slot is unused

    bool operator==(const Preferences&) const = default;
};

/// Reads the file's text. Lines behind the 23rd are ignored. Raises 62, with how many lines are there and
/// how many there should be, when there are fewer.
[[nodiscard]] Preferences parsePreferences(std::string_view text);

/// The file's text as the program leaves it on exit: 23 lines, each ended by CR LF, the first-run flag
/// always 0. A line cannot hold a line break, so a text that has one is written as an empty line.
[[nodiscard]] std::string formatPreferences(const Preferences& preferences);

/// The text of the file that is installed with the program: its first-run flag is 1.
[[nodiscard]] std::string firstRunPreferences();

}  // namespace kav

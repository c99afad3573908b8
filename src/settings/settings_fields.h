// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings dialog shows and stores of the preferences file.
#pragma once

#include "settings/preferences_table.h"

#include <array>
#include <string>
#include <string_view>

namespace kav {

/// The fonts that the dialog offers; any other name may be typed.
inline constexpr std::array<std::string_view, 6> kOfferedFonts{
    "Courier New", "Comic Sans", "Elephant", "Times New Roman", "Tifont", "Vladimir Script"};

/// The header that the dialog writes on line 1.
inline constexpr std::string_view kSettingsHeader = "DON'T TOUCHIE!!!!!!!!!!!!!";

/// The contents of the dialog's controls, named after them. Lines 7 and 8 cross the main window's use of
/// them: it takes line 7, the box "'Easter Eggs'", as its Internet Explorer switch and line 8 as its easter
/// egg switch.
struct SettingsFields {
    std::string fonte;      ///< line 2
    std::string fontse;     ///< line 3, as typed: it need not be a number
    bool asmm = false;      ///< line 4
    bool asmp = false;      ///< line 5
    bool stasm = false;     ///< line 6
    bool eegg = false;      ///< line 7
    bool iexplore = false;  ///< line 8
    std::string craptxt;    ///< line 9

    bool operator==(const SettingsFields&) const = default;
};

/// What the dialog shows when it opens.
[[nodiscard]] SettingsFields settingsFields(const PreferencesTable& table);

/// What Ok stores: the dialog's header, the fields, and lines 10 to 23 as they were.
void storeSettings(PreferencesTable& table, const SettingsFields& fields);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences file as the dialogs see it: a table of texts, of which they exchange a few.
#pragma once

#include "shell/preferences_file.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

/// The lines of the preferences file as they stand.
class PreferencesTable {
  public:
    /// Takes the file's first 23 lines. Raises failure 62 when there are fewer.
    explicit PreferencesTable(std::string_view fileText);

    /// The line of that number, counted from 1 to 23.
    [[nodiscard]] const std::string& line(std::size_t number) const { return lines_.at(number - 1); }

    /// Replaces a line. A line cannot hold a line break: a text that has one is written as an empty line.
    void setLine(std::size_t number, std::string_view text);

    /// The file's text: all lines in order, each ended by CR LF.
    [[nodiscard]] std::string fileText() const;

  private:
    std::array<std::string, kPreferenceLines> lines_;
};

}  // namespace kav

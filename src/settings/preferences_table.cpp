// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences file as a table of texts.
#include "settings/preferences_table.h"

#include "runtime/failure.h"
#include "runtime/lines.h"

#include <string_view>
#include <vector>

namespace kav {

PreferencesTable::PreferencesTable(std::string_view fileText) {
    const std::vector<std::string_view> lines = linesOf(fileText);
    if (lines.size() < kPreferenceLines) {
        throw failureOf(kInputPastEnd, "the preferences file has " + std::to_string(lines.size()) + " of " +
                                           std::to_string(kPreferenceLines) + " lines");
    }
    for (std::size_t i = 0; i < kPreferenceLines; ++i)
        lines_[i] = lines[i];
}

void PreferencesTable::setLine(std::size_t number, std::string_view text) {
    const bool hasLineBreak = text.find_first_of("\r\n") != std::string_view::npos;
    lines_.at(number - 1) = hasLineBreak ? std::string_view() : text;
}

std::string PreferencesTable::fileText() const {
    std::string text;
    for (const std::string& line : lines_)
        text.append(line).append(kCrLf);
    return text;
}

}  // namespace kav

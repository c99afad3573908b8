// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own tools in the preferences file.
#include "tools/custom_tools.h"

namespace kav {

namespace {

constexpr std::size_t kFirstLine = 10;

}  // namespace

CustomToolBoxes customToolBoxes(const PreferencesTable& table) {
    CustomToolBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i] = table.line(kFirstLine + i);
    return boxes;
}

void storeCustomTools(PreferencesTable& table, const CustomToolBoxes& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i)
        table.setLine(kFirstLine + i, boxes[i]);
}

std::optional<std::string> customToolCommand(std::string_view name, std::string_view commandLine) {
    if (name.empty() || commandLine.empty()) return std::nullopt;
    return std::string(commandLine);
}

}  // namespace kav

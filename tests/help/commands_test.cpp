// SPDX-License-Identifier: GPL-3.0-or-later
// The help names every menu entry, key, picture of the toolbar, and file that the program knows.
#include "documents/dialog_filters.h"
#include "help/help_file.h"
#include "shell/menu_table.h"
#include "shell/toolbar_regions.h"
#include "viewer/html_scanner.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kav::test {

namespace {

/// The caption of the menu entry of that name.
std::string captionOf(std::string_view name) {
    for (const MenuEntry& entry : menuTable()) {
        if (entry.name == name) return std::string(entry.caption);
    }
    return {};
}

bool hasRow(const std::vector<std::vector<std::string>>& rows, std::string_view caption,
            std::string_view key) {
    return std::any_of(rows.begin(), rows.end(), [&](const auto& row) {
        return row.size() == 3 && row[0] == caption && row[1] == key && !row[2].empty();
    });
}

}  // namespace

TEST(HelpCommands, ExplainsEveryMenuEntryUnderItsCaptionAndKey) {
    const auto rows = rowsOf(page("menus"));
    for (const MenuEntry& entry : menuTable()) {
        if (entry.separator || entry.depth == 0 || !entry.visible || entry.caption.empty()) continue;
        EXPECT_TRUE(hasRow(rows, entry.caption, entry.shortcut)) << entry.caption << " " << entry.shortcut;
    }
}

TEST(HelpCommands, ExplainsTheEntriesThatPreferencesName) {
    const auto rows = rowsOf(page("menus"));
    EXPECT_TRUE(hasRow(rows, "(recent files)", ""));
    EXPECT_TRUE(hasRow(rows, "(first custom tool)", "F7"));
    EXPECT_TRUE(hasRow(rows, "(second custom tool)", "F8"));
    EXPECT_TRUE(hasRow(rows, "(third custom tool)", "F9"));
}

TEST(HelpCommands, NamesEveryMenuAndEveryEntryThatIsNotShown) {
    for (const MenuEntry& entry : menuTable()) {
        if (entry.separator || (entry.depth > 0 && entry.visible)) continue;
        EXPECT_NE(page("menus").text.find(entry.caption), std::string::npos) << entry.caption;
    }
}

TEST(HelpCommands, ListsEveryKey) {
    for (const MenuEntry& entry : menuTable()) {
        if (entry.shortcut.empty()) continue;
        const std::string key = "<kbd>" + std::string(entry.shortcut) + "</kbd>";
        EXPECT_NE(page("keys").html.find(key), std::string::npos) << key;
    }
}

TEST(HelpCommands, ListsThePicturesOfTheToolbarInTheirOrder) {
    std::vector<std::string> listed;
    for (const auto& row : rowsOf(page("window"))) {
        if (row.size() == 2) listed.push_back(row[1]);
    }
    ASSERT_EQ(listed.size(), toolbarRegions().size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        std::string caption = captionOf(toolbarRegions()[i].command);
        caption = caption.substr(0, caption.find("..."));
        EXPECT_TRUE(listed[i].starts_with(caption)) << i + 1 << ": " << listed[i];
    }
}

TEST(HelpCommands, NamesEveryFileTypeOfTheDialogs) {
    std::set<std::string> endings;
    for (const std::string_view filter : {kOpenFilter, kSaveAsFilter}) {
        for (std::size_t at = filter.find("*."); at != std::string::npos; at = filter.find("*.", at + 1)) {
            endings.emplace(filter.substr(at + 1, filter.find_first_of(",;|)", at) - at - 1));
        }
    }
    EXPECT_GE(endings.size(), 6U);
    for (const std::string& ending : endings) {
        if (ending == ".*") continue;
        EXPECT_NE(page("file-types").html.find("<code>" + ending + "</code>"), std::string::npos) << ending;
    }
}

}  // namespace kav::test

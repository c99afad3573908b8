// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/toolbar_regions.h"

#include "shell/menu_table.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kav {

namespace {

std::string commandAt(double x) {
    const ToolbarRegion* region = toolbarRegionAt(x);
    return region == nullptr ? "none" : std::string(region->command);
}

std::string helpAt(double x) {
    return toolbarHelp(*toolbarRegionAt(x), "/home/me/kav");
}

}  // namespace

TEST(Toolbar, SelectsByTheRightBound) {
    EXPECT_EQ(commandAt(0), "newer");
    EXPECT_EQ(commandAt(15.9), "newer");
    EXPECT_EQ(commandAt(16), "newion");
    EXPECT_EQ(commandAt(100), "svenotas");
    EXPECT_EQ(commandAt(317), "emlme");
    EXPECT_EQ(commandAt(317.99), "emlme");
    EXPECT_EQ(commandAt(318), "none");
    EXPECT_EQ(commandAt(5000), "none");
    EXPECT_EQ(commandAt(-1), "newer");
}

TEST(Toolbar, HasSeventeenRegionsWithoutAGap) {
    const auto regions = toolbarRegions();
    ASSERT_EQ(regions.size(), 17U);
    int left = 0;
    for (const ToolbarRegion& region : regions) {
        EXPECT_EQ(region.left, left);
        EXPECT_EQ(toolbarRegionAt(region.left), &region);
        left = region.right;
    }
    EXPECT_EQ(left, kToolbarStripWidth);
}

TEST(Toolbar, RunsEntriesOfTheMenu) {
    const auto menu = menuTable();
    for (const ToolbarRegion& region : toolbarRegions()) {
        EXPECT_TRUE(std::any_of(menu.begin(), menu.end(), [&](const MenuEntry& entry) {
            return entry.name == region.command;
        })) << region.command;
    }
}

TEST(Toolbar, ExplainsItsRegions) {
    EXPECT_EQ(helpAt(0), "New KAV File-Creates a new file with the KAV header.");
    EXPECT_EQ(helpAt(70), "Open-Opens a file from your hard drive");
    EXPECT_EQ(
        helpAt(115),
        "Save to Projects Folder-Saves a file to /home/me/kav\\Projects which can then be opened using the "
        "quicklist");
    EXPECT_TRUE(helpAt(280).starts_with(
        "Visit my Webpage-Opens your browser (set under settings) and goes to my webpage, http"));
    EXPECT_TRUE(helpAt(300).find("my address is ") != std::string::npos);
    EXPECT_NE(helpAt(300).find('@'), std::string::npos);
}

}  // namespace kav

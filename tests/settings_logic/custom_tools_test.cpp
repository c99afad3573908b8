// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/custom_tools.h"

#include "settings_logic/sample_preferences.h"

#include <gtest/gtest.h>

namespace kav {

using test::samplePreferences;

TEST(CustomTools, AreShownFromLinesTenToFifteen) {
    EXPECT_EQ(customToolBoxes(PreferencesTable(samplePreferences())),
              (CustomToolBoxes{"line 10", "line 11", "line 12", "line 13", "line 14", "line 15"}));
}

TEST(CustomTools, AreStoredWithEverythingElseAsItWas) {
    PreferencesTable table(samplePreferences());
    const CustomToolBoxes boxes{"Edit", "C:\\edit.exe \"a b\"", "", "", "Third", ""};
    storeCustomTools(table, boxes);
    EXPECT_EQ(customToolBoxes(PreferencesTable(table.fileText())), boxes);
    EXPECT_EQ(table.line(1), "line 1");
    EXPECT_EQ(table.line(4), "0");
    EXPECT_EQ(table.line(5), " 1 ");
    EXPECT_EQ(table.line(9), "line 9");
    EXPECT_EQ(table.line(16), "line 16");
    EXPECT_EQ(table.line(23), "line 23");
}

TEST(CustomTools, RunTheirCommandLine) {
    EXPECT_EQ(customToolCommand("Edit", "edit.exe a"), "edit.exe a");
}

TEST(CustomTools, RunNothingWithoutANameOrACommandLine) {
    EXPECT_FALSE(customToolCommand("", "edit.exe").has_value());
    EXPECT_FALSE(customToolCommand("Edit", "").has_value());
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settings_fields.h"

#include "runtime/failure.h"
#include "settings_logic/sample_preferences.h"

#include <gtest/gtest.h>

namespace kav {

using test::samplePreferences;

TEST(PreferencesTable, KeepsTheFileAsItIs) {
    EXPECT_EQ(PreferencesTable(samplePreferences()).fileText(), samplePreferences());
}

TEST(PreferencesTable, LosesLinesBehindTheLast) {
    EXPECT_EQ(PreferencesTable(samplePreferences() + "more\r\n").fileText(), samplePreferences());
}

TEST(PreferencesTable, RefusesAShortFile) {
    const std::string text = samplePreferences();
    try {
        const PreferencesTable table(text.substr(0, text.rfind("line 23")));
        FAIL() << "took 22 lines";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), kInputPastEnd);
    }
}

TEST(PreferencesTable, NeverTakesALineBreakIntoALine) {
    PreferencesTable table(samplePreferences());
    table.setLine(9, "a\r\nb");
    EXPECT_EQ(table.line(9), "");
    EXPECT_EQ(PreferencesTable(table.fileText()).line(10), "line 10");
}

TEST(Settings, ShowLinesTwoToNine) {
    const SettingsFields fields = settingsFields(PreferencesTable(samplePreferences()));
    EXPECT_EQ(fields, (SettingsFields{"line 2", "line 3", false, true, false, true, false, "line 9"}));
}

TEST(Settings, WithoutChangesStillReplaceTheHeaderAndTheFlags) {
    PreferencesTable table(samplePreferences());
    storeSettings(table, settingsFields(table));
    EXPECT_EQ(table.line(1), "DON'T TOUCHIE!!!!!!!!!!!!!");
    EXPECT_EQ(table.line(2), "line 2");
    EXPECT_EQ(table.line(4), " 0 ");
    EXPECT_EQ(table.line(5), " 1 ");
    EXPECT_EQ(table.line(6), " 0 ");
    EXPECT_EQ(table.line(7), " 1 ");
    EXPECT_EQ(table.line(8), " 0 ");
    for (std::size_t number = 9; number <= 23; ++number) {
        EXPECT_EQ(table.line(number), "line " + std::to_string(number));
    }
}

TEST(Settings, StoreFontAndSizeAsTyped) {
    PreferencesTable table(samplePreferences());
    SettingsFields fields = settingsFields(table);
    fields.fonte = "No Such Font";
    fields.fontse = "abc";
    storeSettings(table, fields);
    EXPECT_EQ(table.line(2), "No Such Font");
    EXPECT_EQ(table.line(3), "abc");
}

TEST(Settings, CrossTheMainWindowsUseOfTwoFlags) {
    PreferencesTable table(samplePreferences());
    SettingsFields fields = settingsFields(table);
    fields.eegg = true;
    fields.iexplore = false;
    storeSettings(table, fields);
    EXPECT_TRUE(parsePreferences(table.fileText()).useInternetExplorer);
    EXPECT_FALSE(parsePreferences(table.fileText()).easterEggs);
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preferences_file.h"

#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/lines.h"

#include <gtest/gtest.h>
#include <vector>

namespace kav {

namespace {

using Lines = std::vector<std::string_view>;

const Lines kSample{
    "any header", "Courier",        " 12 ",   " 1 ", " 0 ", " 1 ", " 1 ", " 0 ",      "/usr/bin/web",
    "Tool A",     "/bin/a -x",      "Tool B", "/b",  "",    "",    " 1 ", " 7200.5 ", " 1 ",
    "anything",   "/home/me/1.z80", "2",      "3",   "4",
};

std::string textOf(const Lines& lines) {
    return joinedLines(lines) + "\r\n";
}

/// The sample with line `number` (counted from 1) replaced.
Preferences readWithLine(std::size_t number, std::string_view line) {
    Lines lines = kSample;
    lines[number - 1] = line;
    return parsePreferences(textOf(lines));
}

std::string failureOfReading(const std::string& text) {
    try {
        (void)parsePreferences(text);
    } catch (const Failure& failure) {
        return std::to_string(failure.number()) + " " + failure.description();
    }
    return "";
}

}  // namespace

TEST(PreferencesFile, IsReadByPosition) {
    const Preferences read = parsePreferences(textOf(kSample));
    EXPECT_EQ(read.fontName, "Courier");
    EXPECT_EQ(read.fontSize, 12);
    EXPECT_TRUE(read.make83p);
    EXPECT_FALSE(read.make8xp);
    EXPECT_TRUE(read.showTasm);
    EXPECT_EQ(read.browserPath, "/usr/bin/web");
    EXPECT_EQ(read.customTools[0].name, "Tool A");
    EXPECT_EQ(read.customTools[0].commandLine, "/bin/a -x");
    EXPECT_EQ(read.customTools[1].name, "Tool B");
    EXPECT_EQ(read.customTools[1].commandLine, "/b");
    EXPECT_EQ(read.customTools[2].name, "");
    EXPECT_TRUE(read.firstRun);
    EXPECT_EQ(read.usageSeconds, 7200.5);
    EXPECT_TRUE(read.surveyAsked);
    EXPECT_EQ(read.recentFiles, (std::array<std::string, 4>{"/home/me/1.z80", "2", "3", "4"}));
}

TEST(PreferencesFile, Line7IsTheBrowserSwitchAndLine8TheEasterEggs) {
    EXPECT_TRUE(readWithLine(7, " 1 ").useInternetExplorer);
    EXPECT_FALSE(readWithLine(7, " 1 ").easterEggs);
    EXPECT_FALSE(readWithLine(7, " 0 ").useInternetExplorer);
    EXPECT_TRUE(readWithLine(8, " 1 ").easterEggs);
}

TEST(PreferencesFile, AFlagIsSetByOneAlone) {
    EXPECT_TRUE(readWithLine(4, " 1 ").make83p);
    EXPECT_TRUE(readWithLine(4, "1x").make83p);
    for (const char* line : {"-1", "True", "2", ""})
        EXPECT_FALSE(readWithLine(4, line).make83p) << line;
}

TEST(PreferencesFile, SurveyAskedTakesNothingButANumberThatIsOne) {
    EXPECT_TRUE(readWithLine(18, "1.0").surveyAsked);
    EXPECT_FALSE(readWithLine(18, "1x").surveyAsked);
    EXPECT_FALSE(readWithLine(18, "").surveyAsked);
}

TEST(PreferencesFile, TheFontSizeIsRoundedIntoSixteenBits) {
    EXPECT_EQ(readWithLine(3, "10.5").fontSize, 10);
    EXPECT_EQ(readWithLine(3, "99999").fontSize, 32767);
    EXPECT_EQ(readWithLine(3, "big").fontSize, 0);
}

TEST(PreferencesFile, LinesBehindThe23rdAreIgnored) {
    EXPECT_EQ(parsePreferences(textOf(kSample) + "more\r\n").recentFiles[3], "4");
}

TEST(PreferencesFile, ThatIsTooShortIsRefusedWithTheLineThatIsMissing) {
    const std::string shortText = textOf(Lines(kSample.begin(), kSample.begin() + 22));
    EXPECT_EQ(
        failureOfReading(shortText),
        "62 Input past end of file: the preferences have 22 of 23 lines, line 23 (fourth recent file) is "
        "the first that is missing");
    EXPECT_TRUE(failureOfReading("").starts_with("62 "));
}

TEST(PreferencesFile, IsWrittenAs23Lines) {
    const std::string text = formatPreferences(parsePreferences(textOf(kSample)));
    Lines expected = kSample;
    expected[0] = "Don't modify/move/delete this file. It contains KAV Compiler's files.";
    expected[15] = " 0 ";
    expected[18] = "PLACEHOLDER";
    EXPECT_EQ(text, textOf(expected));
}

TEST(PreferencesFile, TheFirstRunFlagIsAlwaysWrittenAsZero) {
    Preferences preferences;
    preferences.firstRun = true;
    EXPECT_EQ(linesOf(formatPreferences(preferences))[15], " 0 ");
}

TEST(PreferencesFile, UsageSecondsReadBackToTheSameValue) {
    Preferences preferences;
    preferences.usageSeconds = 123456789.125;
    EXPECT_EQ(parsePreferences(formatPreferences(preferences)).usageSeconds, 123456789.125);
}

TEST(PreferencesFile, AValueWithALineBreakMovesNoOtherLine) {
    Preferences preferences;
    preferences.recentFiles = {"odd\nname", "second", "", ""};
    const Preferences read = parsePreferences(formatPreferences(preferences));
    EXPECT_EQ(read.recentFiles[0], "");
    EXPECT_EQ(read.recentFiles[1], "second");
}

TEST(PreferencesFile, IsInstalledWithTheValuesOfAFirstRun) {
    EXPECT_EQ(readFile(KAV_INSTALLED_PREFERENCES), firstRunPreferences());
}

TEST(PreferencesFile, AsInstalledStartsAFirstRunThatMakesAn8xp) {
    const std::string text = firstRunPreferences();
    EXPECT_EQ(linesOf(text).size(), kPreferenceLines);
    const Preferences read = parsePreferences(text);
    EXPECT_TRUE(read.firstRun);
    EXPECT_TRUE(read.make8xp);
    EXPECT_FALSE(read.make83p);
    EXPECT_EQ(read.fontSize, 12);
    EXPECT_FALSE(read.fontName.empty());
    EXPECT_EQ(read.recentFiles, (std::array<std::string, 4>{}));
}

}  // namespace kav

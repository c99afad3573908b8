// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/program_name.h"

#include <gtest/gtest.h>

namespace kav {

TEST(ProgramName, OfEightCharactersFits) {
    EXPECT_TRUE(fitsProgramName("12345678"));
    EXPECT_FALSE(fitsProgramName("123456789"));
    EXPECT_EQ(shortenedProgramName("123456789"), "12345678");
}

TEST(ProgramName, ThatIsEmptyFits) {
    EXPECT_TRUE(fitsProgramName(""));
}

TEST(ProgramName, IsCountedInCharactersAndNeverCutInsideOne) {
    const std::string eight = "1234567\xC3\xA9";
    EXPECT_TRUE(fitsProgramName(eight));
    EXPECT_EQ(shortenedProgramName(eight + "9"), eight);
}

TEST(ProgramName, QuestionsAreExact) {
    EXPECT_STREQ(kNameTitle, "Compile Program");
    EXPECT_STREQ(kNamePrompt, "Enter Program Name");
    EXPECT_STREQ(kNameTooLongPrompt, "Program name must 8 chars or less.");
}

TEST(ProgramName, StaysInTheFolderWhateverAShellWouldMakeOfIt) {
    for (const char* name : {"hello", "a&b", "$(x)", "a b", "", "..a", "a;b", "|", "\xC3\xA9"}) {
        EXPECT_TRUE(nameStaysInFolder(name)) << name;
    }
}

TEST(ProgramName, ThatLeadsElsewhereOrBreaksTheScriptIsRefused) {
    for (const char* name : {"../x", "a/b", "a\\b", "C:x", ".", "..", "a\nb", "a\rb", "a\tb", "a\x7F"}) {
        EXPECT_FALSE(nameStaysInFolder(name)) << name;
    }
    EXPECT_FALSE(nameStaysInFolder(std::string_view("a\0b", 3)));
}

}  // namespace kav

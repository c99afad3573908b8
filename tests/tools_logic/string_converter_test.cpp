// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/string_converter.h"

#include <gtest/gtest.h>

namespace kav {

TEST(PlainConversion, GivesOneLineForSixteenCharacters) {
    EXPECT_EQ(plainConversion("0123456789abcdef", LineStart::spaced), " .db \"0123456789abcdef\"");
}

TEST(PlainConversion, StartsASecondLineWithTheSeventeenthCharacter) {
    EXPECT_EQ(plainConversion("0123456789abcdefg", LineStart::tabbed),
              "\t.db \"0123456789abcdef\"\r\n\t.db \"g\"");
}

TEST(PlainConversion, GivesOneEmptyStringForAnEmptyText) {
    EXPECT_EQ(plainConversion("", LineStart::spaced), " .db \"\"");
}

TEST(PlainConversion, LeavesQuotationMarksAsTheyAre) {
    EXPECT_EQ(plainConversion("a\"b", LineStart::spaced), " .db \"a\"b\"");
}

TEST(PlainConversion, CutsNoCharacterInTwo) {
    EXPECT_EQ(plainConversion("0123456789abcde\xC3\xA9!", LineStart::spaced),
              " .db \"0123456789abcde\xC3\xA9\"\r\n .db \"!\"");
}

TEST(JoinedInput, LosesLineEndsAndNothingElse) {
    EXPECT_EQ(joinedInput("a\r\nb\r\n\r\nc\r\n"), "abc");
    EXPECT_EQ(joinedInput("a\rb\nc"), "a\rb\nc");
    EXPECT_EQ(joinedInput("\r\r\n\n"), "\r\n");
    EXPECT_EQ(joinedInput(""), "");
}

TEST(StringConverter, JoinsLinesBeforeItSplitsThem) {
    ConverterOptions options;
    EXPECT_EQ(convertedText("ab\r\ncd", options, [] { return false; }), " .db \"abcd\"");
    options.toVCode = true;
    const std::string text = convertedText("i\r\ns", options, [] { return false; }).value_or("");
    EXPECT_TRUE(text.ends_with("\r\n .db $81")) << text;
}

TEST(StringConverter, IgnoresTheZeroOptionInBothModes) {
    for (const bool toVCode : {false, true}) {
        const ConverterOptions without{toVCode, false, LineStart::tabbed};
        const ConverterOptions with{toVCode, true, LineStart::tabbed};
        const auto never = [] { return false; };
        EXPECT_EQ(convertedText("Zero", with, never), convertedText("Zero", without, never));
    }
}

}  // namespace kav

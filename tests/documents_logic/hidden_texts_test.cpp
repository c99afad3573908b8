// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/hidden_texts.h"

#include "runtime/lines.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

using Effect = HiddenText::Effect;

HiddenText triggered(std::string_view phrase, double usageSeconds = 0) {
    return hiddenTextFor(phrase, usageSeconds).value();
}

}  // namespace

TEST(HiddenText, DarknessBringsSixLinesInItalics) {
    const HiddenText text = triggered("In the darkness bind them");
    EXPECT_EQ(text.effect, Effect::Italic);
    EXPECT_EQ(linesOf(text.replacement).size(), 6U);
    EXPECT_FALSE(text.replacement.ends_with(kCrLf));
}

TEST(HiddenText, ANameFromTheVerseBringsFiveLinesInBold) {
    const HiddenText text = triggered("Orlamund");
    EXPECT_EQ(text.effect, Effect::Bold);
    EXPECT_EQ(linesOf(text.replacement).size(), 5U);
    EXPECT_NE(text.replacement.find("Orlamund"), std::string::npos);
    EXPECT_FALSE(text.replacement.ends_with(kCrLf));
}

TEST(HiddenText, OnTheirDeathbedTellsTheTimeSpent) {
    const HiddenText text = triggered("On their deathbed", 7261);
    EXPECT_EQ(text.effect, Effect::None);
    EXPECT_TRUE(text.replacement.starts_with(
        "They say no one died wishing they had spent more time at the office.\r\n\r\n"
        "You spent a total of 7261 seconds with KAV Compiler running."));
}

TEST(HiddenText, MakeMeLaughStartsTheBrowserAndLeavesTheText) {
    const HiddenText text = triggered("Make me laugh");
    EXPECT_EQ(text.effect, Effect::Browser);
    EXPECT_TRUE(text.commandLine.starts_with("C:\\Program Files\\Internet Explorer\\iexplore.exe https://"));
    EXPECT_EQ(text.replacement, "");
}

TEST(HiddenText, MirageHatersMeetTheDucks) {
    const HiddenText text = triggered("I HATE MIRAGEOS!");
    EXPECT_EQ(text.effect, Effect::None);
    EXPECT_EQ(
        text.replacement,
        "So do we, DUCKOS FOREVER QUACK, QUACK, QUACK!!!!!!!!!!!!!!!!!!! (Its best not to think about it:)");
}

TEST(HiddenText, APhraseInsideOtherTextDoesNothing) {
    for (const char* text : {"", "make me laugh", "Make me laugh ", " Make me laugh", "Make me laugh\r\n"}) {
        EXPECT_FALSE(hiddenTextFor(text, 0)) << text;
    }
}

TEST(HiddenText, AReplacementTriggersNothingFurther) {
    for (const char* phrase :
         {"In the darkness bind them", "Orlamund", "On their deathbed", "I HATE MIRAGEOS!"}) {
        EXPECT_FALSE(hiddenTextFor(triggered(phrase).replacement, 0)) << phrase;
    }
}

TEST(HiddenText, LengthAloneRulesMostTextsOut) {
    for (const char* phrase : {"In the darkness bind them", "Orlamund", "On their deathbed", "Make me laugh",
                               "I HATE MIRAGEOS!"}) {
        EXPECT_TRUE(mayBeHiddenText(std::string_view(phrase).size())) << phrase;
    }
    EXPECT_FALSE(mayBeHiddenText(0));
    EXPECT_FALSE(mayBeHiddenText(10'000'000));
}

}  // namespace kav

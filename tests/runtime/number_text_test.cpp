// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/number_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace kav {

TEST(NumericValue, ReadsTheNumberATextBeginsWith) {
    EXPECT_EQ(numericValue(" 12abc"), 12);
    EXPECT_EQ(numericValue("-3.5"), -3.5);
    EXPECT_EQ(numericValue("+7"), 7);
    EXPECT_EQ(numericValue(".5"), 0.5);
    EXPECT_EQ(numericValue("1E3"), 1000);
}

TEST(NumericValue, IsZeroWhereThereIsNoNumber) {
    for (const char* text : {"", "   ", "abc", "-", "+-1", "inf", "nan", "True"}) {
        EXPECT_EQ(numericValue(text), 0) << text;
    }
}

TEST(Flag, IsSetByOneAlone) {
    for (const char* text : {"1", " 1 ", "1x", "1.0"})
        EXPECT_TRUE(flagValue(text)) << text;
    for (const char* text : {"-1", "2", "", "True", "0", "10"})
        EXPECT_FALSE(flagValue(text)) << text;
}

TEST(WholeNumber, TakesNoTextBehindTheNumber) {
    EXPECT_EQ(wholeNumber(" 1 "), 1.0);
    EXPECT_EQ(wholeNumber("1x"), std::nullopt);
    EXPECT_EQ(wholeNumber(""), std::nullopt);
}

TEST(PrintForm, HasABlankBeforeAndBehind) {
    EXPECT_EQ(printForm(1), " 1 ");
    EXPECT_EQ(printForm(0), " 0 ");
    EXPECT_EQ(printForm(-2.5), "-2.5 ");
}

TEST(PrintForm, ReadsBackToTheSameValue) {
    for (const double value : {0.1, 7200.0, 1e21, 123456789.25}) {
        EXPECT_EQ(numericValue(printForm(value)), value);
    }
}

TEST(RoundedInt16, RoundsHalvesToEvenAndStaysInRange) {
    EXPECT_EQ(roundedInt16(2.5), 2);
    EXPECT_EQ(roundedInt16(3.5), 4);
    EXPECT_EQ(roundedInt16(1e9), 32767);
    EXPECT_EQ(roundedInt16(-1e9), -32768);
    EXPECT_EQ(roundedInt16(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace kav

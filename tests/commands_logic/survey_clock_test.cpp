// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/survey_clock.h"

#include <gtest/gtest.h>

namespace kav {

TEST(SurveyClock, AsksAfterTwoHoursAndNotBefore) {
    SurveyClock clock(7198, false);
    EXPECT_FALSE(clock.tick(false));
    EXPECT_EQ(clock.usageSeconds(), 7199);
    EXPECT_TRUE(clock.tick(false));
    EXPECT_EQ(clock.usageSeconds(), 7200);
}

TEST(SurveyClock, AsksOnceWhateverTheAnswer) {
    SurveyClock clock(7199, false);
    EXPECT_TRUE(clock.tick(false));
    EXPECT_TRUE(clock.surveyAsked());
    EXPECT_FALSE(clock.tick(false));
    EXPECT_EQ(clock.usageSeconds(), 7201);
}

TEST(SurveyClock, WaitsForABuildToEnd) {
    SurveyClock clock(7199, false);
    EXPECT_FALSE(clock.tick(true));
    EXPECT_FALSE(clock.surveyAsked());
    EXPECT_FALSE(clock.tick(true));
    EXPECT_TRUE(clock.tick(false));
}

TEST(SurveyClock, DoesNotAskAgainInLaterRuns) {
    SurveyClock clock(9000, true);
    EXPECT_FALSE(clock.tick(false));
}

TEST(SurveyClock, ShowsItsSecondsAsDecimalText) {
    SurveyClock clock(41, false);
    clock.tick(false);
    EXPECT_EQ(clock.usageText(), "42");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/date_notices.h"

#include <gtest/gtest.h>

namespace kav {

TEST(DateNotice, ComesOn21January2005) {
    const auto notice = dateNotice({2005, 1, 21, 23, 59, 59});
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->title, "KAV COMPILER IS OOOOOOOOOOOLLLLLLLLLLLLLDDDDDD!!!");
    EXPECT_EQ(
        notice->text,
        "WOW! KAV Compiler is still in use in this year? I'm truely amazed. This won't appear again after "
        "today.");
}

TEST(DateNotice, ComesOn20January2010) {
    const auto notice = dateNotice({2010, 1, 20, 0, 0, 0});
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->title, "No Aliens? Or do they program Z80 too?");
    EXPECT_EQ(notice->text,
              "That is pushing it. Aliens haven't landed yet? This won't appear again after today.");
}

TEST(DateNotice, ComesOnNoOtherDay) {
    for (const LocalTime& day : {LocalTime{2005, 1, 20, 0, 0, 0}, LocalTime{2006, 1, 21, 0, 0, 0},
                                 LocalTime{2010, 2, 20, 0, 0, 0}, LocalTime{2010, 1, 21, 0, 0, 0}}) {
        EXPECT_FALSE(dateNotice(day)) << day.year << ' ' << day.month << ' ' << day.day;
    }
}

TEST(NewYearsDay, IsTheFirstOfJanuaryOfAnyYear) {
    EXPECT_TRUE(isNewYearsDay({1999, 1, 1, 0, 0, 0}));
    EXPECT_TRUE(isNewYearsDay({2026, 1, 1, 12, 0, 0}));
    EXPECT_FALSE(isNewYearsDay({2026, 1, 2, 0, 0, 0}));
    EXPECT_FALSE(isNewYearsDay({2026, 2, 1, 0, 0, 0}));
    EXPECT_EQ(kNewYearGreeting, ";Happy New Year!!!");
}

}  // namespace kav

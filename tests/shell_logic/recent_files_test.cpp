// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_files.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace kav {

using Paths = std::array<std::string, 4>;

TEST(RecentFiles, TheNewestComesFirstAndTheFifthDropsOut) {
    RecentFiles files(Paths{"a", "b", "c", "d"});
    files.push("e");
    EXPECT_EQ(files.items(), (Paths{"e", "a", "b", "c"}));
    EXPECT_EQ(files.item(1), "e");
    EXPECT_EQ(files.item(4), "c");
}

TEST(RecentFiles, AFileOpenedTwiceIsListedTwice) {
    RecentFiles files(Paths{"a", "", "", ""});
    files.push("a");
    EXPECT_EQ(files.items(), (Paths{"a", "a", "", ""}));
}

TEST(RecentFiles, EmptySlotsAreHidden) {
    const RecentFiles files(Paths{"a", "", "c", ""});
    EXPECT_TRUE(files.visible(1));
    EXPECT_FALSE(files.visible(2));
    EXPECT_TRUE(files.visible(3));
    EXPECT_FALSE(files.visible(4));
}

TEST(RecentFiles, TheSeparatorIsHiddenAtStartUpWhenNoFileIsListed) {
    EXPECT_FALSE(RecentFiles(Paths{}).separatorVisible());
    EXPECT_TRUE(RecentFiles(Paths{"", "", "", "d"}).separatorVisible());
}

TEST(RecentFiles, OpeningAFileShowsTheSeparatorEvenForAnEmptyPath) {
    RecentFiles files;
    files.push("");
    EXPECT_TRUE(files.separatorVisible());
    EXPECT_FALSE(files.visible(1));
}

TEST(RecentFiles, SlotsOutsideOneToFourAreRefused) {
    const RecentFiles files;
    EXPECT_THROW((void)files.item(0), std::out_of_range);
    EXPECT_THROW((void)files.item(5), std::out_of_range);
}

}  // namespace kav

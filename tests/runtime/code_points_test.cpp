// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/code_points.h"

#include <gtest/gtest.h>

namespace kav {

TEST(Characters, AreCodePointsAndNeverCut) {
    EXPECT_EQ(firstCharacters("h\xC3\xA9llo", 2), "h\xC3\xA9");
    EXPECT_EQ(characterCount("h\xC3\xA9llo"), 5U);
    EXPECT_EQ(characterCount("\xF0\x9F\x90\xB8"), 1U);
}

TEST(Characters, StrayBytesCountOneEach) {
    EXPECT_EQ(characterCount("\xFF\xC3"), 2U);
    EXPECT_EQ(firstCharacters("\xE2\x82", 1), "\xE2");
}

TEST(Characters, AskingForMoreGivesAll) {
    EXPECT_EQ(firstCharacters("ab", 9), "ab");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/lines.h"

#include <gtest/gtest.h>

namespace kav {

using Lines = std::vector<std::string_view>;

TEST(Lines, EndAtEveryKindOfLineEnd) {
    EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
}

TEST(Lines, ALineEndAtTheEndStartsNoFurtherLine) {
    EXPECT_EQ(linesOf("a\r\n"), (Lines{"a"}));
    EXPECT_EQ(linesOf("a\r\n\r\n"), (Lines{"a", ""}));
    EXPECT_EQ(linesOf(""), (Lines{}));
}

TEST(Lines, AreJoinedWithoutALineEndBehindTheLast) {
    EXPECT_EQ(joinedLines({"a", "", "b"}), "a\r\n\r\nb");
    EXPECT_EQ(joinedLines({}), "");
}

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

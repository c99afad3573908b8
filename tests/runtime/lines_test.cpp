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

}  // namespace kav

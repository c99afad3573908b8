// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/edit_operations.h"

#include <gtest/gtest.h>

namespace kav {

TEST(Delete, TakesTheSelection) {
    EXPECT_EQ(deletedSelection("abcdef", {1, 3}), (Selection{1, 3}));
}

TEST(Delete, TakesTheCharacterBehindTheCursor) {
    EXPECT_EQ(deletedSelection("abc", {1, 0}), (Selection{1, 1}));
}

TEST(Delete, JoinsLinesByTakingCrAndLfTogether) {
    EXPECT_EQ(deletedSelection("ab\r\ncd", {2, 0}), (Selection{2, 2}));
    EXPECT_EQ(deletedSelection("ab\r\ncd", {2, 1}), (Selection{2, 2}));
}

TEST(Delete, TakesALineFeedAlone) {
    EXPECT_EQ(deletedSelection("ab\ncd", {2, 0}), (Selection{2, 1}));
}

TEST(Delete, TakesNothingAtTheEnd) {
    EXPECT_EQ(deletedSelection("abc", {3, 0}), (Selection{3, 0}));
    EXPECT_EQ(deletedSelection("", {0, 0}), (Selection{0, 0}));
}

TEST(Delete, TakesALoneCrAtTheEnd) {
    EXPECT_EQ(deletedSelection("ab\r", {2, 0}), (Selection{2, 1}));
}

TEST(Delete, NeverCutsACharacterInTwo) {
    EXPECT_EQ(deletedSelection("a\xC3\xA9z", {1, 0}), (Selection{1, 2}));
    EXPECT_EQ(deletedSelection("\xF0\x9F\x90\xB8", {0, 0}), (Selection{0, 4}));
    EXPECT_EQ(deletedSelection("\r\xC3\xA9z", {0, 0}), (Selection{0, 3}));
    EXPECT_EQ(deletedSelection("\xC3z", {0, 0}), (Selection{0, 1}));
}

TEST(SelectAll, SelectsTheWholeText) {
    EXPECT_EQ(wholeText("ab\r\nc"), (Selection{0, 5}));
    EXPECT_EQ(wholeText(""), (Selection{0, 0}));
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/caption.h"

#include <gtest/gtest.h>

namespace kav {

TEST(Caption, IsDocNumberTabAndName) {
    EXPECT_EQ(documentCaption(3, "C:\\src\\a.z80"), "Doc 3\tC:\\src\\a.z80");
    EXPECT_EQ(documentCaption(1, kUntitled), "Doc 1\tUntitled");
}

TEST(Caption, GivesTheNameBack) {
    EXPECT_EQ(captionName("Doc 3\t/a.z80"), "/a.z80");
}

TEST(Caption, FromDocument10OnTheNameKeepsSurplusDigitsAndTheTab) {
    EXPECT_EQ(captionName(documentCaption(10, "/a.z80")), "\t/a.z80");
    EXPECT_EQ(captionName(documentCaption(123, "/a.z80")), "3\t/a.z80");
}

TEST(Caption, ANewNameFollowsTheFirstSixCharacters) {
    EXPECT_EQ(captionWithName("Doc 3\tUntitled", "/b.z80"), "Doc 3\t/b.z80");
    EXPECT_EQ(captionWithName("Doc 12\tUntitled", "/b.z80"), "Doc 12/b.z80");
}

TEST(Caption, AnswersToTheFirstDigitOfItsNumber) {
    EXPECT_EQ(captionDigit("Doc 7\tx"), 7);
    EXPECT_EQ(captionDigit(documentCaption(1, "x")), captionDigit(documentCaption(12, "x")));
    EXPECT_EQ(captionDigit("Doc x"), 0);
    EXPECT_EQ(captionDigit("Doc"), 0);
}

TEST(Caption, HasATrueNameAndAWholeNumber) {
    EXPECT_EQ(captionTrueName("Doc 3\t/a.z80"), "/a.z80");
    EXPECT_EQ(captionTrueName(documentCaption(123, "/a.z80")), "/a.z80");
    EXPECT_EQ(captionTrueName("Doc 12/b.z80"), "/b.z80");
    EXPECT_EQ(captionTrueName("Doc 1\t"), "");
    EXPECT_EQ(captionTrueName("Doc"), "");
    EXPECT_EQ(captionNumber(documentCaption(123, "x")), 123);
    EXPECT_EQ(captionNumber("Doc"), 0);
}

TEST(Caption, IsShownWithBlanksForTheTab) {
    EXPECT_EQ(displayedCaption("Doc 3\t/a.z80"), "Doc 3    /a.z80");
}

TEST(Caption, ThatIsTooShortHasNoName) {
    EXPECT_EQ(captionName("Doc"), "");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/listing.h"

#include <gtest/gtest.h>

namespace kav::viewer {

namespace {

using Lines = std::vector<std::size_t>;

constexpr std::string_view kListing =
    "0001   9D93  BB 6D              .db $BB,$6D\n"
    "0002   9D95                    #include \"part.inc\"\n"
    "0003+  9D95  00                 nop\n"
    "0003   9D96  21 00 00           ld hl,mesage\n"
    "0004   9D99  48 65 6C 6C 6F     .db \"Hello, world\",0\n"
    "0004   9D9E  2C 20 77 6F\n"
    "temp.z80 has 2 errors:\n"
    "temp.z80 line 0003: Label not found: (MESAGE), did you mean MESSAGE?\n"
    "temp.z80 line 0004: Range of argument exceeded\n";

}  // namespace

TEST(Listing, FindsItsErrorsAndTheSourceLinesTheyMean) {
    const ListingErrors found = errorsOf(kListing);
    ASSERT_EQ(found.errors.size(), 2U);
    EXPECT_EQ(found.errors[0].sourceLine, 3);
    EXPECT_EQ(found.errors[0].message, "Label not found: (MESAGE), did you mean MESSAGE?");
    EXPECT_EQ(found.errors[0].shownAt, 3U) << "not the included file's third line";
    EXPECT_EQ(found.errors[0].toldAt, 7U);
    EXPECT_EQ(found.errors[1].shownAt, 4U);
    EXPECT_EQ(found.markedLines, (Lines{3, 4, 5, 7, 8}));
}

TEST(Listing, ALineThatIsNotListedLeavesTheMessageToGoTo) {
    const ListingErrors found = errorsOf(
        "0002   0000                     .list\n"
        "temp.z80 line 0001: Unrecognized directive: .lisst\n"
        "temp.z80 line 0001: Another");
    ASSERT_EQ(found.errors.size(), 2U);
    EXPECT_EQ(found.errors[0].shownAt, 1U);
    EXPECT_EQ(found.errors[1].shownAt, 2U);
    EXPECT_EQ(found.markedLines, (Lines{1, 2}));
}

TEST(Listing, TakesTheTrueNumberOfALineBeyondFourDigits) {
    const ListingErrors found = errorsOf(
        "9999   0000                     nop\n"
        "12345   0000                     nope\n"
        "temp.z80 line 9999: line 12345: Unrecognized instruction: (NOPE)");
    ASSERT_EQ(found.errors.size(), 1U);
    EXPECT_EQ(found.errors[0].sourceLine, 12345);
    EXPECT_EQ(found.errors[0].message, "Unrecognized instruction: (NOPE)");
    EXPECT_EQ(found.errors[0].shownAt, 1U);
    EXPECT_EQ(found.markedLines, (Lines{1, 2}));
}

TEST(Listing, TextThatOnlyLooksLikeAnErrorIsNone) {
    for (const char* line :
         {"temp.z80 has 1 error:", "temp.z80 line 12: short", "temp.z80 line 0012 message",
          "a.z80 line 0012: message", "temp.z80  line 0012: message", "", "temp.z80 line "}) {
        EXPECT_TRUE(errorsOf(line).errors.empty()) << line;
        EXPECT_TRUE(errorsOf(line).markedLines.empty()) << line;
    }
}

TEST(Listing, AListingWithoutErrorsHasNoMarks) {
    EXPECT_TRUE(errorsOf("0001   0000  00   nop\n").markedLines.empty());
    EXPECT_TRUE(errorsOf("").markedLines.empty());
}

TEST(Listing, EveryLineEndBecomesALineFeed) {
    EXPECT_EQ(listingText("a\r\nb\rc\nd"), "a\nb\nc\nd");
}

TEST(Listing, NothingElseEndsALine) {
    // Line and paragraph separator, and the toolkit's own marks of frames.
    EXPECT_EQ(listingText("a\xE2\x80\xA8"
                          "b\xE2\x80\xA9"
                          "c\xEF\xB7\x90\xEF\xB7\x91"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD"
              "c\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(listingText(std::string_view("a\0b", 3)), "a b");
}

TEST(Listing, GoesRoundFromErrorToError) {
    EXPECT_EQ(errorBeside(3, 3, false), 0U) << "none was current";
    EXPECT_EQ(errorBeside(3, 3, true), 2U);
    EXPECT_EQ(errorBeside(0, 3, false), 1U);
    EXPECT_EQ(errorBeside(2, 3, false), 0U);
    EXPECT_EQ(errorBeside(0, 3, true), 2U);
    EXPECT_EQ(errorBeside(0, 1, false), 0U);
}

}  // namespace kav::viewer

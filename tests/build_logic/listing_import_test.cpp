// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/listing_import.h"

#include <gtest/gtest.h>

namespace kav {

using Tasks = std::vector<ImportedTask>;

TEST(ListingImport, MakesATaskOfTheLineBehindATempLine) {
    EXPECT_EQ(importListing("temp.z80 errors\r\ntemp.z80 line 0007: bad operand\r\n", '2'),
              (Tasks{{"Document 2 Line 7:  bad operand", "20007"}}));
}

TEST(ListingImport, TakesNoErrorLineThatStandsAlone) {
    EXPECT_EQ(importListing("temp.z80 line 0007: bad operand\r\n", '2'), Tasks{});
    EXPECT_EQ(importListing("0001 9D95 nop\r\ntemp.z80 line 0007: bad\r\n", '2'), Tasks{});
}

TEST(ListingImport, TakesEveryLineOfARunButTheFirst) {
    EXPECT_EQ(importListing("temp\r\ntemp.z80 line 0001: a\r\ntemp.z80 line 0012: b\r\n", '1'),
              (Tasks{{"Document 1 Line 1:  a", "10001"}, {"Document 1 Line 12:  b", "10012"}}));
}

TEST(ListingImport, TakesWhateverFollowsATempLine) {
    EXPECT_EQ(importListing("temp\r\nno fields here\r\n0001 nop\r\n", '3'),
              (Tasks{{"Document 3 Line 0: no fields here", "3"}}));
    EXPECT_EQ(importListing("temp\r\n\r\n", '3'), (Tasks{{"Document 3 Line 0: ", "3"}}));
}

TEST(ListingImport, ReadsFieldsByPosition) {
    EXPECT_EQ(importListing("temp\r\ntemp.z80 line 12x4: m: n\r\n", '1'),
              (Tasks{{"Document 1 Line 12:  m: n", "112x4"}}));
    EXPECT_EQ(importListing("temp\r\ntemp.z80 line 1E30: m\r\n", '1'),
              (Tasks{{"Document 1 Line 1:  m", "11E30"}}));
    EXPECT_EQ(importListing("temp\r\ntemp.z80 line -001: m\r\n", '1'),
              (Tasks{{"Document 1 Line 0:  m", "1-001"}}));
}

TEST(ListingImport, KnowsTempInLowerCaseAtTheStartOnly) {
    EXPECT_EQ(importListing("TEMP\r\na\r\n temp\r\nb\r\n", '1'), Tasks{});
    EXPECT_EQ(importListing("temporary\na\n", '1').size(), 1U);
}

TEST(ListingImport, FindsNothingInAnEmptyListing) {
    EXPECT_EQ(importListing("", '1'), Tasks{});
}

using Errors = std::vector<LineError>;

TEST(ListedErrors, AreTheSameWithLinesAsNumbers) {
    EXPECT_EQ(listedErrors("temp.z80 has 2 errors:\r\ntemp.z80 line 0007: bad operand\r\n"
                           "temp.z80 line 0012: Label not found: (x)\r\n"),
              (Errors{{7, "bad operand"}, {12, "Label not found: (x)"}}));
    EXPECT_EQ(listedErrors("temp.z80 line 0007: alone\r\n"), Errors{});
    EXPECT_EQ(listedErrors(""), Errors{});
}

TEST(ListedErrors, ReadFarLinesFromTheMessage) {
    EXPECT_EQ(listedErrors("temp\r\ntemp.z80 line 9999: line 12345: bad\r\n"),
              (Errors{{12345, "line 12345: bad"}}));
    EXPECT_EQ(listedErrors("temp\r\ntemp.z80 line 9999: line noise\r\n"), (Errors{{9999, "line noise"}}));
    EXPECT_EQ(listedErrors("temp\r\ntemp.z80 line 0003: line 12: bad\r\n"), (Errors{{3, "line 12: bad"}}));
    EXPECT_EQ(listedErrors("temp\r\ntemp.z80 line 9999: line 99999999999999999999: bad\r\n").size(), 1U);
}

TEST(ListedErrors, WithoutANumberHaveLineNought) {
    EXPECT_EQ(listedErrors("temp\r\nwhatever\r\n"), (Errors{{0, "whatever"}}));
}

}  // namespace kav

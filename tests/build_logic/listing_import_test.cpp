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

}  // namespace kav

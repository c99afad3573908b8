// SPDX-License-Identifier: GPL-3.0-or-later
#include "build_protocol/error_report.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

const BuildError kLabel{12, "Label not found: (msg)"};
const BuildError kRange{7, "Range of relative branch exceeded"};

}  // namespace

TEST(ErrorBlock, PutsEachErrorBehindALineThatBeginsWithTemp) {
    EXPECT_EQ(errorBlock({kRange, kLabel}),
              "temp.z80 has 2 errors:\r\n"
              "temp.z80 line 0007: Range of relative branch exceeded\r\n"
              "temp.z80 line 0012: Label not found: (msg)\r\n");
}

TEST(ErrorBlock, IsEmptyWithoutErrors) {
    EXPECT_EQ(errorBlock({}), "");
}

TEST(ErrorBlock, KeepsTheNumberAtItsFourPlaces) {
    EXPECT_EQ(errorBlock({{12345, "Unrecognized directive"}}),
              "temp.z80 has 1 error:\r\ntemp.z80 line 9999: line 12345: Unrecognized directive\r\n");
    EXPECT_EQ(errorBlock({{0, "x"}}), "temp.z80 has 1 error:\r\ntemp.z80 line 0001: x\r\n");
}

TEST(ErrorBlock, KeepsAMessageInOneLine) {
    EXPECT_EQ(errorBlock({{1, "a\r\nb\nc"}}), "temp.z80 has 1 error:\r\ntemp.z80 line 0001: a  b c\r\n");
}

TEST(MergedErrors, GiveTheSameErrorOnceAndSayWhereTheOthersBelong) {
    const std::vector<BuildError> merged =
        mergedErrors({{Calculator::Ti83Plus, {kLabel}}, {Calculator::Ti83, {kLabel, kRange}}});
    EXPECT_EQ(merged, (std::vector<BuildError>{
                          {7, "Range of relative branch exceeded (TI-83 only)"},
                          kLabel,
                      }));
}

TEST(MergedErrors, OfOneCalculatorStayAsTheyAre) {
    EXPECT_EQ(mergedErrors({{Calculator::Ti83, {kRange, kLabel}}}),
              (std::vector<BuildError>{kRange, kLabel}));
}

TEST(ListingWithoutErrorBlock, HasNoLineThatTheEditorTakesForAnError) {
    EXPECT_EQ(withoutErrorBlock("0001 9D93 00 nop\r\ntemp.z80 has 1 error:\r\ntemp.z80 line 0001: x\r\n"),
              "0001 9D93 00 nop\r\n");
    EXPECT_EQ(withoutErrorBlock("0001 9D93 ; a lone\rtemp CR\n"), "0001 9D93 ; a lone\r\n");
}

}  // namespace kav

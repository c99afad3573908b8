// SPDX-License-Identifier: GPL-3.0-or-later
#include "build_protocol/counted_calculators.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

using Counted = std::vector<Calculator>;

Counted countedWith(const std::string& make83p, const std::string& make8xp) {
    return countedCalculators("header\r\nfont\r\n12\r\n" + make83p + "\r\n" + make8xp + "\r\n1\r\n1\r\n");
}

}  // namespace

TEST(CountedCalculators, AreThoseTickedInThePreferences) {
    EXPECT_EQ(countedWith(" 0 ", " 1 "), Counted{Calculator::Ti83Plus});
    EXPECT_EQ(countedWith(" 1 ", " 0 "), Counted{Calculator::Ti83});
    EXPECT_EQ(countedWith(" 1 ", " 1 "), (Counted{Calculator::Ti83Plus, Calculator::Ti83}));
}

TEST(CountedCalculators, ATickIsANumberThatIsExactlyOne) {
    EXPECT_EQ(countedWith("1x", "-1"), Counted{Calculator::Ti83});
    EXPECT_EQ(countedWith("1", "2"), Counted{Calculator::Ti83});
    EXPECT_EQ(countedWith("1", "True"), Counted{Calculator::Ti83});
}

TEST(CountedCalculators, AreTheTi83PlusWhenNoneIsTicked) {
    EXPECT_EQ(countedWith(" 0 ", " 0 "), Counted{Calculator::Ti83Plus});
}

TEST(CountedCalculators, AreTheTi83PlusWithoutPreferences) {
    EXPECT_EQ(countedCalculators(std::nullopt), Counted{Calculator::Ti83Plus});
    EXPECT_EQ(countedCalculators(""), Counted{Calculator::Ti83Plus});
    EXPECT_EQ(countedCalculators("header\r\nfont\r\n"), Counted{Calculator::Ti83Plus});
}

}  // namespace kav

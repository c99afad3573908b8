// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/disc.h"

#include <gtest/gtest.h>

namespace kav {

TEST(DiscRings, GoFromTheWidestInwards) {
    EXPECT_NEAR(ringRadius(1), 0.499, 1e-9);
    EXPECT_NEAR(ringRadius(kDiscRings), 0.050, 1e-9);
}

TEST(DiscGradient, TakesItsRangeFromTheRandomNumbers) {
    EXPECT_EQ(discGradient(0, 0), (DiscGradient{0, 10}));
    EXPECT_EQ(discGradient(0.5, 0.5), (DiscGradient{389449, 30}));
    EXPECT_EQ(discGradient(0.9999999, 0.9999999), (DiscGradient{778898, 49}));
}

TEST(DiscGradient, ColoursEachRingAStepFurther) {
    const DiscGradient gradient{1000, 49};
    EXPECT_EQ(gradient.colourOf(1), 1049U);
    EXPECT_EQ(gradient.colourOf(450), 23050U);
}

TEST(FlatDisc, IsGreen) {
    EXPECT_EQ(redOf(kFlatColour), 147);
    EXPECT_EQ(greenOf(kFlatColour), 226);
    EXPECT_EQ(blueOf(kFlatColour), 11);
    EXPECT_EQ(kFlatRadius, 0.5);
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/base64.h"

#include <gtest/gtest.h>

namespace kav::viewer {

// The vectors of RFC 4648, section 10.
TEST(Base64, EncodesTheVectorsOfItsStandard) {
    EXPECT_EQ(base64(""), "");
    EXPECT_EQ(base64("f"), "Zg==");
    EXPECT_EQ(base64("fo"), "Zm8=");
    EXPECT_EQ(base64("foo"), "Zm9v");
    EXPECT_EQ(base64("foob"), "Zm9vYg==");
    EXPECT_EQ(base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
}

TEST(Base64, TakesBytesBeyondLetters) {
    EXPECT_EQ(base64(std::string("\xFF\xFE\x00", 3)), "//4A");
}

}  // namespace kav::viewer

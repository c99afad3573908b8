// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/case_folding.h"

#include "runtime/code_points.h"

#include <gtest/gtest.h>

namespace kav {

TEST(FoldedCase, IsTheSameForBothCasesOfALetter) {
    EXPECT_EQ(foldedCase(U'A'), foldedCase(U'a'));
    EXPECT_EQ(foldedCase(U'Z'), foldedCase(U'z'));
    EXPECT_EQ(foldedCase(U'\u00C9'), foldedCase(U'\u00E9'));  // Latin
    EXPECT_EQ(foldedCase(U'\u0160'), foldedCase(U'\u0161'));
    EXPECT_EQ(foldedCase(U'\u0178'), foldedCase(U'\u00FF'));
    EXPECT_EQ(foldedCase(U'\u03A9'), foldedCase(U'\u03C9'));  // Greek
    EXPECT_EQ(foldedCase(U'\u0416'), foldedCase(U'\u0436'));  // Cyrillic
    EXPECT_EQ(foldedCase(U'\u0401'), foldedCase(U'\u0451'));
}

TEST(FoldedCase, KnowsLettersWithMoreThanTwoForms) {
    EXPECT_EQ(foldedCase(U'\u03C2'), foldedCase(U'\u03A3'));
    EXPECT_EQ(foldedCase(U'\u212A'), U'k');
    EXPECT_EQ(foldedCase(U'\u1E9E'), U'\u00DF');
}

TEST(FoldedCase, LeavesEverythingElse) {
    EXPECT_EQ(foldedCase(U'@'), U'@');
    EXPECT_EQ(foldedCase(U'['), U'[');
    EXPECT_EQ(foldedCase(U'\u00D7'), U'\u00D7');
    EXPECT_EQ(foldedCase(U'\u0101'), U'\u0101');
    EXPECT_EQ(foldedCase(U'\U0001F438'), U'\U0001F438');
    EXPECT_EQ(foldedCase(kStrayByteBase + 0xC9), kStrayByteBase + 0xC9);
}

TEST(CodePoints, AreReadWithTheirLengths) {
    EXPECT_EQ(codePointAt("a", 0).value, U'a');
    EXPECT_EQ(codePointAt("x\xC3\xA9", 1).value, U'\u00E9');
    EXPECT_EQ(codePointAt("\xE2\x82\xAC", 0).value, U'\u20AC');
    EXPECT_EQ(codePointAt("\xF0\x9F\x90\xB8", 0).value, U'\U0001F438');
    EXPECT_EQ(codePointAt("\xF0\x9F\x90\xB8", 0).length, 4U);
}

TEST(CodePoints, OfStrayBytesEqualNoCharacter) {
    EXPECT_EQ(codePointAt("\xE2\x82", 0).value, kStrayByteBase + 0xE2);
    EXPECT_EQ(codePointAt("\xE2\x82", 0).length, 1U);
    EXPECT_EQ(codePointAt("\xC3z", 0).length, 1U);
    EXPECT_EQ(codePointAt("\xFF", 0).value, kStrayByteBase + 0xFF);
}

TEST(CharacterStart, MovesOutOfACharacter) {
    const std::string_view text = "a\xF0\x9F\x90\xB8z";
    EXPECT_EQ(characterStart(text, 0), 0U);
    EXPECT_EQ(characterStart(text, 1), 1U);
    EXPECT_EQ(characterStart(text, 2), 5U);
    EXPECT_EQ(characterStart(text, 4), 5U);
    EXPECT_EQ(characterStart(text, 5), 5U);
    EXPECT_EQ(characterStart(text, 9), 6U);
    EXPECT_EQ(characterStart("\x80\x80", 1), 1U);
}

}  // namespace kav

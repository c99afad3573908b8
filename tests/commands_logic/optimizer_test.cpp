// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/optimizer.h"

#include <gtest/gtest.h>
#include <random>

namespace kav {

namespace {

/// The rule as it is told: the first match from the top, again and again.
std::string toldOptimizer(std::string text) {
    for (std::size_t at = 0; (at = text.find("ld a,0")) != std::string::npos;)
        text.replace(at, 6, "xor a");
    for (std::size_t at = 0; (at = text.find("cp 0")) != std::string::npos;)
        text.replace(at, 4, "or a");
    return text;
}

}  // namespace

TEST(Optimizer, RewritesBothIdioms) {
    EXPECT_EQ(optimizedCode("ld a,0 ; clear"), "xor a ; clear");
    EXPECT_EQ(optimizedCode("cp 0"), "or a");
    EXPECT_EQ(optimizedCode("\tcp 0\r\n\tld a,0\r\n\tcp 0"), "\tor a\r\n\txor a\r\n\tor a");
}

TEST(Optimizer, LooksAtNothingAroundTheMatch) {
    EXPECT_EQ(optimizedCode("ld a,00"), "xor a0");
    EXPECT_EQ(optimizedCode("ld a,0FFh"), "xor aFFh");
    EXPECT_EQ(optimizedCode("cp 0Ah"), "or aAh");
    EXPECT_EQ(optimizedCode("cp 00"), "or a0");
    EXPECT_EQ(optimizedCode("; cp 0 \"ld a,0\""), "; or a \"xor a\"");
}

TEST(Optimizer, LeavesOtherSpellings) {
    for (const char* text : {"LD A,0", "ld a, 0", "ld  a,0", "CP 0", "cp  0", "", "ld a,", "cp "}) {
        EXPECT_EQ(optimizedCode(text), text);
    }
}

TEST(Optimizer, IsTheToldRuleOnRandomTexts) {
    std::mt19937 random(7);
    const std::string_view pieces[] = {"ld a,0", "cp 0", "ld a,", "ld ", "a,0", "cp", " 0", "xor a",
                                       "or a",   "l",    "d",     "c",   "p",   "0",  " ",  ","};
    std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (int piece = 0; piece < 12; ++piece)
            text += pieces[pick(random)];
        ASSERT_EQ(optimizedCode(text), toldOptimizer(text)) << text;
    }
}

TEST(Optimizer, TakesALargeTextInOnePass) {
    std::string text;
    for (int line = 0; line < 400000; ++line)
        text += "\tld a,0\r\n\tcp 0\r\n";
    EXPECT_EQ(optimizedCode(text).size(), text.size() - 400000);
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assembler/text.h"

#include "assembler/suggestion.h"

#include <gtest/gtest.h>

namespace kav::assembler {

namespace {

std::vector<std::string> partsOf(std::string_view list) {
    std::vector<std::string> parts;
    ListReader reader(list);
    for (std::string_view part; reader.next(part);)
        parts.emplace_back(part);
    return parts;
}

using Parts = std::vector<std::string>;

}  // namespace

TEST(Lists, AreCutAtCommasOutsideQuotesAndParentheses) {
    EXPECT_EQ(partsOf("a, b ,c"), (Parts{"a", "b", "c"}));
    EXPECT_EQ(partsOf("\"a,b\",','"), (Parts{"\"a,b\"", "','"}));
    EXPECT_EQ(partsOf("f(a,b),c"), (Parts{"f(a,b)", "c"}));
    EXPECT_EQ(partsOf("af,af'"), (Parts{"af", "af'"}));
}

TEST(Lists, MayHaveEmptyParts) {
    EXPECT_EQ(partsOf(""), (Parts{}));
    EXPECT_EQ(partsOf("a,"), (Parts{"a", ""}));
    EXPECT_EQ(partsOf(",a"), (Parts{"", "a"}));
}

TEST(QuotedText, EndsBehindItsQuote) {
    EXPECT_EQ(behindQuoted("\"ab\"c", 0), 4U);
    EXPECT_EQ(behindQuoted("\"a\\\"b\"c", 0), 6U);
    EXPECT_EQ(behindQuoted("\"ab", 0), std::string_view::npos);
    EXPECT_EQ(behindQuoted("'a'b", 0), 3U);
    EXPECT_EQ(behindQuoted("'\\''b", 0), 4U);
    EXPECT_EQ(behindQuoted("af'", 2), 3U);
}

TEST(ShownText, StaysOnOneLine) {
    EXPECT_EQ(shown(" a\tb "), "a b");
    EXPECT_EQ(shown(std::string("a\0b\nc", 5)), "a?b?c");
    EXPECT_EQ(shown(std::string(100, 'x')), std::string(60, 'x') + "...");
}

TEST(ShownText, NeverHoldsHalfACharacter) {
    EXPECT_EQ(shown(std::string(59, 'x') + "\xC3\xA9"), std::string(59, 'x') + "...");
}

TEST(NearestWord, IsTheOneWithTheFewestTypingMistakes) {
    NearestWord nearest("strat");
    for (const char* word : {"stack", "start", "string"})
        nearest.consider(word);
    EXPECT_EQ(nearest.best(), "start");
}

TEST(NearestWord, IsNoneWhenNothingIsNear) {
    NearestWord nearest("frobnicate");
    nearest.consider("call");
    nearest.consider("frobnicate");  // not a correction of itself
    EXPECT_EQ(nearest.best(), "");
}

TEST(TypingMistakes, AreCountedUpToALimit) {
    EXPECT_EQ(typingMistakes("abc", "abc", 2), 0U);
    EXPECT_EQ(typingMistakes("abc", "acb", 2), 1U);
    EXPECT_EQ(typingMistakes("abc", "abcd", 2), 1U);
    EXPECT_EQ(typingMistakes("abc", "xyz", 2), 3U);
}

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/parentheses.h"

#include <gtest/gtest.h>
#include <string>

namespace kav::test {

namespace {

/// The line with its caret, which `|` stands for, as it is marked: [ and ] for a pair, ! for a lone one.
std::string marked(std::string text) {
    const std::size_t caret = text.find('|');
    text.erase(caret, 1);
    const auto found = parenthesisBeside(text, caret);
    if (!found) return text;
    text[found->place] = found->partner ? '[' : '!';
    if (found->partner) text[*found->partner] = ']';
    return text;
}

}  // namespace

TEST(Parentheses, AreFoundBesideTheCaret) {
    EXPECT_EQ(marked(" ld a,|(hl)"), " ld a,[hl]");
    EXPECT_EQ(marked(" ld a,(|hl)"), " ld a,[hl]");
    EXPECT_EQ(marked(" ld a,(hl)|"), " ld a,]hl[");
    EXPECT_EQ(marked(" ld a,(h|l)"), " ld a,(hl)");
    EXPECT_EQ(marked("|"), "");
    EXPECT_EQ(marked("(a)|(b)"), "]a[(b)") << "the one in front of the caret comes first";
}

TEST(Parentheses, BelongToTheNearestThatIsOpen) {
    EXPECT_EQ(marked(" ld a,|((1+2)*(3))"), " ld a,[(1+2)*(3)]");
    EXPECT_EQ(marked(" ld a,((1+2)*(|3))"), " ld a,((1+2)*[3])");
    EXPECT_EQ(marked(" ld a,((1+2)*(3))|"), " ld a,](1+2)*(3)[");
}

TEST(Parentheses, AreLoneWithoutAPartner) {
    EXPECT_EQ(marked(" ld a,((|hl)"), " ld a,([hl]");
    EXPECT_EQ(marked(" ld a,|((hl)"), " ld a,!(hl)");
    EXPECT_EQ(marked(" ld a,hl)|"), " ld a,hl!");
    EXPECT_EQ(marked(")(|"), ")!");
    EXPECT_EQ(marked("())|("), "()!(");
}

TEST(Parentheses, InCommentsAndQuotesAreNone) {
    EXPECT_EQ(marked(" ld a,(hl|) ; :)"), " ld a,]hl[ ; :)");
    EXPECT_EQ(marked(" ld a,(hl ; :)|"), " ld a,(hl ; :)");
    EXPECT_EQ(marked(" call f(\")\",|(')'))"), " call f(\")\",[')'])");
    EXPECT_EQ(marked(" .db \"(|\""), " .db \"(\"");
    EXPECT_EQ(marked(" cp '('|+(1)"), " cp '('+(1)");
}

TEST(Parentheses, DoNotReachIntoTheNextStatement) {
    EXPECT_EQ(marked(" ld a,(|1 \\ ld b,2)"), " ld a,!1 \\ ld b,2)");
    EXPECT_EQ(marked(" ld a,(1 \\ ld b,2)|"), " ld a,(1 \\ ld b,2!");
    EXPECT_EQ(marked("#define f(|x) g(x) \\ h"), "#define f[x] g(x) \\ h");
}

TEST(Parentheses, BesideACaretBehindTheLineAreNone) {
    EXPECT_EQ(parenthesisBeside("()", 5), std::nullopt);
}

}  // namespace kav::test

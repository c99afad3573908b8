// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/html_scanner.h"

#include <gtest/gtest.h>

namespace kav::viewer {

TEST(HtmlScanner, FindsTagsWithTheirAttributes) {
    const std::string_view html = "text <a href=\"keys.html#f1\" id=\"x\">F1</a>";
    const auto opening = nextTag(html, 0);
    ASSERT_TRUE(opening);
    EXPECT_EQ(opening->name, "a");
    EXPECT_FALSE(opening->closes);
    EXPECT_EQ(attributeOf(*opening, "href"), "keys.html#f1");
    EXPECT_EQ(attributeOf(*opening, "id"), "x");
    EXPECT_FALSE(attributeOf(*opening, "ref"));
    EXPECT_EQ(contentOf(html, *opening), "F1");
    const auto closing = nextTag(html, opening->end);
    ASSERT_TRUE(closing);
    EXPECT_TRUE(closing->closes);
    EXPECT_EQ(closing->name, "a");
    EXPECT_FALSE(nextTag(html, closing->end));
}

TEST(HtmlScanner, PassesOverCommentsAndTheDocumentType) {
    const auto tag = nextTag("<!DOCTYPE html><!-- <b> --><br/>", 0);
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->name, "br");
    EXPECT_FALSE(nextTag("<!-- never closed <b>", 0));
    EXPECT_FALSE(nextTag("a < b", 0));
}

TEST(HtmlScanner, PlainTextKeepsBlanksAndLineBreaks) {
    EXPECT_EQ(plainText("<pre>  ld a,1 &lt;&lt; 2\n  ret</pre>"), "  ld a,1 << 2\n  ret");
    EXPECT_EQ(plainText("<!-- first <b> --><b>a</b>&amp;b<!-- last -->"), "a&b");
}

TEST(HtmlScanner, RunningTextHasOneBlankBetweenWords) {
    EXPECT_EQ(runningText("<p>one\n  two</p><p>thr<b>ee</b></p>"), "one two three");
    EXPECT_EQ(runningText("<td>Save</td><td>Ctrl+S</td>"), "Save Ctrl+S");
}

TEST(HtmlScanner, NamesCharactersThatItDoesNotKnow) {
    EXPECT_TRUE(unknownCharacterNames("&amp; &rarr; &nbsp;").empty());
    EXPECT_EQ(unknownCharacterNames("a &bogus; b & c"), (std::vector<std::string>{"&bogus;", "&;"}));
}

}  // namespace kav::viewer

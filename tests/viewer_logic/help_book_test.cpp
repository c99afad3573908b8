// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/help_book.h"

#include <gtest/gtest.h>

namespace kav::viewer {

namespace {

constexpr std::string_view kBook =
    "<!DOCTYPE html>\n<html><body>"
    "<section id=\"index\"><h1>Help</h1><p><a href=\"#keys\">Keys</a></p><h2>Start</h2><ul><li><a "
    "href=\"#first\">First steps</a></li></ul>"
    "<h2>Look up</h2><a href=\"#keys\">Keys</a> and <a href=\"#f1\">F1</a></section>"
    "<section id=\"first\"><h1>First <b>steps</b></h1><p id=\"save\">Save it.</p></section>"
    "<section id=\"keys\"><h1>Keys</h1><p id=\"f1\">F1</p></section></body></html>";

}  // namespace

TEST(HelpBook, SplitsTheFileIntoPages) {
    const HelpBook book(kBook);
    ASSERT_EQ(book.pages().size(), 3U);
    EXPECT_EQ(book.pages()[1].name, "first");
    EXPECT_EQ(book.pages()[1].title, "First steps");
    EXPECT_EQ(book.pages()[1].html, "<h1>First <b>steps</b></h1><p id=\"save\">Save it.</p>");
    EXPECT_EQ(book.pages()[1].text, "First steps Save it.");
}

TEST(HelpBook, TakesTheContentsListFromTheFirstPage) {
    const HelpBook book(kBook);
    ASSERT_EQ(book.contents().size(), 4U)
        << "neither a link to a place within a page nor one above all headings";
    EXPECT_EQ(book.contents()[0].title, "Start");
    EXPECT_FALSE(book.contents()[0].page);
    EXPECT_EQ(book.contents()[1].title, "First steps");
    EXPECT_EQ(book.contents()[1].page, 1U);
    EXPECT_EQ(book.contents()[2].title, "Look up");
    EXPECT_EQ(book.contents()[3].page, 2U);
}

TEST(HelpBook, FindsThePageThatHasAPlace) {
    const HelpBook book(kBook);
    const auto page = book.placeOf("keys");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->page, 2U);
    EXPECT_EQ(page->anchor, "");
    const auto place = book.placeOf("f1");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->page, 2U);
    EXPECT_EQ(place->anchor, "f1");
    EXPECT_FALSE(book.placeOf("none"));
}

TEST(HelpBook, TellsHelpFilesFromListings) {
    EXPECT_TRUE(HelpBook::isBook(kBook));
    EXPECT_FALSE(HelpBook::isBook("0001   0000    <!DOCTYPE html>"));
    EXPECT_FALSE(HelpBook::isBook(""));
}

TEST(HelpBook, ADocumentWithoutSectionsHasNoPages) {
    const HelpBook book("<!DOCTYPE html><p>damaged");
    EXPECT_TRUE(book.pages().empty());
    EXPECT_TRUE(book.contents().empty());
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/book_maker.h"

#include "viewer/help_book.h"

#include <gtest/gtest.h>

namespace kav::viewer {

namespace {

using Problems = std::vector<std::string>;

/// A book of an index and one page, which is `text` below its heading.
BookParts partsWith(const std::string& text) {
    return {{{"index.html", "<h1>Help</h1><a href=\"keys.html\">Keys</a>"},
             {"keys.html", "<h1>Keys</h1>\n" + text}},
            {}};
}

Problems problemsOf(const std::string& text) {
    return makeBook(partsWith(text)).problems;
}

const std::string kPicture = "\x89PNG\r\n\x1A\n";

}  // namespace

TEST(BookMaker, PutsThePagesIntoTheOrderOfTheIndex) {
    BookParts parts;
    parts.pages = {{"a.html", "<h1>A</h1>"},
                   {"b.html", "<h1>B</h1>"},
                   {"index.html", "<h1>Help</h1><a href=\"b.html\">B</a><a href=\"a.html\">A</a>"}};
    const MadeBook made = makeBook(parts);
    EXPECT_EQ(made.problems, Problems());
    const HelpBook book(made.html);
    ASSERT_EQ(book.pages().size(), 3U);
    EXPECT_EQ(book.pages()[1].title, "B");
    EXPECT_EQ(book.pages()[2].title, "A");
    EXPECT_TRUE(HelpBook::isBook(made.html));
}

TEST(BookMaker, LinksLeadToPlacesOfTheBook) {
    const MadeBook made =
        makeBook(partsWith("<p id=\"f1\"><a href=\"index.html\">up</a> <a href=\"#f1\">here</a> "
                           "<a href=\"keys.html#f1\">there</a></p>"));
    EXPECT_EQ(made.problems, Problems());
    EXPECT_NE(made.html.find("<a href=\"#index\">up</a> <a href=\"#f1\">here</a> <a href=\"#f1\">there</a>"),
              std::string::npos);
}

TEST(BookMaker, PicturesBecomePartOfTheBook) {
    BookParts parts = partsWith("<img src=\"pictures/one.png\" alt=\"One\"/>");
    parts.pictures["one.png"] = kPicture;
    const MadeBook made = makeBook(parts);
    EXPECT_EQ(made.problems, Problems());
    EXPECT_NE(made.html.find("<img src=\"data:image/png;base64,iVBORw0KGgo=\" alt=\"One\"/>"),
              std::string::npos);
}

TEST(BookMaker, RefusesLinksThatLeadNowhere) {
    EXPECT_EQ(problemsOf("<a href=\"none.html\">x</a>"),
              Problems{"keys.html line 2: there is no page none.html"});
    EXPECT_EQ(problemsOf("\n<a href=\"#none\">x</a>"),
              Problems{"keys.html line 3: there is no place none in keys.html"});
    EXPECT_EQ(problemsOf("<p id=\"f1\">x</p><a href=\"index.html#f1\">x</a>"),
              Problems{"keys.html line 2: there is no place f1 in index.html"});
    EXPECT_EQ(problemsOf("<a href=\"http://example.org\">x</a>"),
              Problems{"keys.html line 2: there is no page http://example.org"});
}

TEST(BookMaker, RefusesPicturesThatAreMissingUnusedOrWithoutWords) {
    EXPECT_EQ(problemsOf("<img src=\"pictures/none.png\" alt=\"\"/>"),
              Problems{"keys.html line 2: there is no picture pictures/none.png"});
    BookParts parts = partsWith("<img src=\"pictures/one.png\"/>");
    parts.pictures = {{"one.png", kPicture}, {"two.png", kPicture}};
    EXPECT_EQ(makeBook(parts).problems,
              (Problems{"keys.html line 2: a picture needs words in its place (alt)",
                        "pictures/two.png: no page shows this picture"}));
    BookParts text = partsWith("<img src=\"pictures/one.png\" alt=\"One\"/>");
    text.pictures = {{"one.png", "GIF89a"}};
    EXPECT_EQ(makeBook(text).problems, Problems{"keys.html line 2: one.png is no PNG picture"});
}

TEST(BookMaker, RefusesPagesThatTheIndexDoesNotLeadTo) {
    BookParts parts = partsWith("");
    parts.pages["lost.html"] = "<h1>Lost</h1>";
    EXPECT_EQ(makeBook(parts).problems, Problems{"lost.html: the index does not lead to this page"});
}

TEST(BookMaker, RefusesOneNameForTwoPlaces) {
    EXPECT_EQ(problemsOf("<p id=\"index\">x</p>"),
              Problems{"keys.html line 2: the place index is also in index.html"});
}

TEST(BookMaker, RefusesTagsThatAreUnknownOrNotClosed) {
    EXPECT_EQ(problemsOf("<p><b>x</p></b>"),
              (Problems{"keys.html line 2: </p> closes nothing", "keys.html line 2: <p> is not closed"}));
    EXPECT_EQ(problemsOf("<p>x"), Problems{"keys.html line 2: <p> is not closed"});
    EXPECT_EQ(problemsOf("<script></script>").front(),
              "keys.html line 2: the viewer does not know the tag <script>");
    EXPECT_EQ(problemsOf("a<br/>b"), Problems());
}

TEST(BookMaker, RefusesASecondHeadingAndUnknownCharacters) {
    EXPECT_EQ(problemsOf("<h1>Two</h1>"), Problems{"keys.html line 2: a page has one heading <h1>, not 2"});
    EXPECT_EQ(problemsOf("&bogus;"), Problems{"keys.html line 2: there is no character &bogus;"});
}

TEST(BookMaker, NeedsAnIndex) {
    EXPECT_EQ(makeBook({}).problems, Problems{"index.html: there is no such page"});
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/help_search.h"

#include <gtest/gtest.h>

namespace kav::viewer {

namespace {

HelpBook bookOf(const std::vector<std::pair<std::string, std::string>>& pages) {
    std::string html = "<!DOCTYPE html>";
    for (std::size_t i = 0; i < pages.size(); ++i) {
        html.append("<section id=\"p").append(std::to_string(i)).append("\"><h1>").append(pages[i].first);
        html.append("</h1><p>").append(pages[i].second).append("</p></section>");
    }
    return HelpBook(html);
}

std::vector<std::size_t> pagesOf(const std::vector<SearchHit>& hits) {
    std::vector<std::size_t> pages;
    pages.reserve(hits.size());
    for (const SearchHit& hit : hits)
        pages.push_back(hit.page);
    return pages;
}

}  // namespace

TEST(HelpSearch, FindsPagesThatHaveAllTheWordsInAnyCase) {
    const HelpBook book =
        bookOf({{"One", "A label is a name."}, {"Two", "Labels, not NAMES"}, {"Three", "label"}});
    EXPECT_EQ(pagesOf(searchBook(book, "LABEL name")), (std::vector<std::size_t>{0, 1}));
    EXPECT_TRUE(searchBook(book, "label bogus").empty());
}

TEST(HelpSearch, PutsTitlesFirstThenPhrasesThenManyPlaces) {
    const HelpBook book = bookOf({{"A", "list of the task"},
                                  {"B", "the task list"},
                                  {"C", "task list, task list"},
                                  {"The task list", "tasks"}});
    EXPECT_EQ(pagesOf(searchBook(book, "task list")), (std::vector<std::size_t>{3, 2, 1, 0}));
}

TEST(HelpSearch, MarksThePhraseWhereItStandsElseTheFirstWord) {
    const HelpBook book = bookOf({{"A", "task list"}, {"B", "list of tasks"}});
    const auto hits = searchBook(book, "Task  List");
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].found, "task list");
    EXPECT_EQ(hits[1].found, "task");
}

TEST(HelpSearch, FindsSignsOfTheAssembler) {
    const HelpBook book = bookOf({{"A", "Write .db %1010 or 1 &lt;&lt; 3."}});
    EXPECT_EQ(searchBook(book, ".db %").size(), 1U);
    EXPECT_EQ(searchBook(book, "<<").size(), 1U);
}

TEST(HelpSearch, NoWordsFindNothing) {
    const HelpBook book = bookOf({{"A", "text"}});
    EXPECT_TRUE(searchBook(book, "").empty());
    EXPECT_TRUE(searchBook(book, "  ").empty());
}

TEST(HelpSearch, ExcerptsAreCutBetweenWords) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "filler ";
    const HelpBook book = bookOf({{"A", text + "needle " + text}});
    const auto hits = searchBook(book, "needle");
    ASSERT_EQ(hits.size(), 1U);
    const std::string& excerpt = hits[0].excerpt;
    EXPECT_TRUE(excerpt.starts_with("... filler ")) << excerpt;
    EXPECT_TRUE(excerpt.ends_with(" filler ...")) << excerpt;
    EXPECT_NE(excerpt.find(" needle "), std::string::npos) << excerpt;
    EXPECT_LT(excerpt.size(), 120U);
}

TEST(HelpSearch, ExcerptsOfShortAndOfUnbrokenTextsAreWhole) {
    EXPECT_EQ(searchBook(bookOf({{"A", "needle"}}), "needle")[0].excerpt, "A needle");
    const std::string unbroken(300, 'x');
    const auto hits = searchBook(bookOf({{"A", unbroken + "needle" + unbroken}}), "needle");
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_FALSE(hits[0].excerpt.empty());
}

}  // namespace kav::viewer

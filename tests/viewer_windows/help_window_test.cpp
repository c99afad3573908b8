// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/help_window.h"

#include "viewer/book_maker.h"
#include "viewer/colours.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

namespace kav::viewer {

namespace {

/// A PNG picture of a size that nothing else has.
std::string picture() {
    QImage image(37, 21, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

std::string longText() {
    std::string text;
    for (int i = 0; i < 200; ++i)
        text += "<p>Filler line.</p>";
    return text;
}

std::string sampleBook() {
    BookParts parts;
    parts.pages = {{"index.html",
                    "<h1>Help</h1><h2>Start</h2><ul><li><a href=\"first.html\">First</a></li>"
                    "<li><a href=\"keys.html\">Keys</a></li></ul>"},
                   {"first.html",
                    "<h1>First steps</h1><p>Press <a href=\"keys.html#f1\">F1</a> for help.</p>"
                    "<pre>start:\n        ld a,1  ; one\n\n\tret\n</pre>"
                    "<img src=\"pictures/one.png\" alt=\"One\"/>"},
                   {"keys.html", "<h1>Keys</h1>" + longText() + "<p id=\"f1\">F1 opens the help. Help!</p>"}};
    parts.pictures = {{"one.png", picture()}};
    const MadeBook made = makeBook(parts);
    EXPECT_TRUE(made.problems.empty());
    return made.html;
}

class Help : public testing::Test {
  protected:
    Help() : window_(sampleBook()) {
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));  // keys go to the active window
    }

    HelpBrowser& browser() { return *window_.findChild<HelpBrowser*>("page"); }
    QTreeWidget& contents() { return *window_.findChild<QTreeWidget*>("contents"); }
    QListWidget& results() { return *window_.findChild<QListWidget*>("results"); }
    QLineEdit& words() { return *window_.findChild<QLineEdit*>("words"); }
    void run(const char* action) { window_.findChild<QAction*>(action)->trigger(); }
    bool enabled(const char* action) { return window_.findChild<QAction*>(action)->isEnabled(); }

    /// Follows the first link on the page with the keyboard.
    void followLink() {
        browser().setFocus();
        QTest::keyClick(&browser(), Qt::Key_Tab);
        QTest::keyClick(&browser(), Qt::Key_Return);
    }

    HelpWindow window_;
};

}  // namespace

TEST_F(Help, OpensOnTheContents) {
    EXPECT_EQ(browser().page(), 0U);
    EXPECT_EQ(window_.windowTitle(), "Help");
    EXPECT_TRUE(browser().toPlainText().startsWith("Help"));
}

TEST_F(Help, TheListAtTheSideLeadsToPagesUnderTheirHeadings) {
    ASSERT_EQ(contents().topLevelItemCount(), 1);
    QTreeWidgetItem* heading = contents().topLevelItem(0);
    EXPECT_EQ(heading->text(0), "Start");
    ASSERT_EQ(heading->childCount(), 2);
    EXPECT_EQ(heading->child(1)->text(0), "Keys");
    emit contents().itemClicked(heading->child(1), 0);
    EXPECT_EQ(browser().page(), 2U);
    EXPECT_EQ(window_.windowTitle(), "Keys - KAV Compiler Help");
    EXPECT_EQ(contents().currentItem(), heading->child(1));
    emit contents().itemClicked(heading, 0);
    EXPECT_EQ(browser().page(), 2U) << "a heading is no page";
}

TEST_F(Help, ALinkLeadsToItsPlaceOnAnotherPage) {
    browser().showPage(1);
    followLink();
    EXPECT_EQ(browser().page(), 2U);
    EXPECT_EQ(browser().source().fragment(), "f1");
    const QPoint middle = browser().viewport()->rect().center();
    EXPECT_GT(browser().cursorForPosition(middle).position(), 1000) << "the page has moved to the place";
}

TEST_F(Help, GoesBackAndForward) {
    EXPECT_FALSE(enabled("back"));
    browser().showPage(1);
    followLink();
    run("back");
    EXPECT_EQ(browser().page(), 1U);
    run("back");
    EXPECT_EQ(browser().page(), 0U);
    EXPECT_FALSE(enabled("back"));
    run("forward");
    run("forward");
    EXPECT_EQ(browser().page(), 2U);
    EXPECT_FALSE(enabled("forward"));
    run("home");
    EXPECT_EQ(browser().page(), 0U);
}

TEST_F(Help, TurnsPagesInTheirOrderAndStopsAtTheEnds) {
    run("previousPage");
    EXPECT_EQ(browser().page(), 0U);
    run("nextPage");
    run("nextPage");
    run("nextPage");
    EXPECT_EQ(browser().page(), 2U);
}

TEST_F(Help, ShowsThePicturesOfTheBook) {
    browser().showPage(1);
    bool shown = false;
    for (QTextBlock block = browser().document()->begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextImageFormat image = fragment.fragment().charFormat().toImageFormat();
            if (!image.isValid()) continue;
            const QVariant resource =
                browser().document()->resource(QTextDocument::ImageResource, image.name());
            shown = resource.value<QImage>().size() == QSize(37, 21) ||
                    resource.value<QPixmap>().size() == QSize(37, 21) ||
                    QImage::fromData(resource.toByteArray()).size() == QSize(37, 21);
        }
    }
    EXPECT_TRUE(shown);
}

TEST_F(Help, WordsTurnTheContentsIntoThePagesThatHaveThem) {
    QTest::keyClicks(&words(), "opens help");
    EXPECT_FALSE(contents().isVisible());
    ASSERT_EQ(results().count(), 1);
    EXPECT_TRUE(results().item(0)->text().startsWith("Keys\n"));
    QTest::keyClick(&words(), Qt::Key_Return);
    EXPECT_EQ(browser().page(), 2U);
    EXPECT_EQ(browser().textCursor().selectedText().toLower(), "opens");
    EXPECT_EQ(browser().extraSelections().size(), 1);
    words().clear();
    EXPECT_TRUE(contents().isVisible());
    EXPECT_FALSE(results().isVisible());
    EXPECT_TRUE(browser().extraSelections().isEmpty());
}

TEST_F(Help, KeysLeadFromTheWordsIntoTheFoundPagesAndBack) {
    words().setFocus();
    QTest::keyClicks(&words(), "help");
    ASSERT_EQ(results().count(), 3);
    QTest::keyClick(&words(), Qt::Key_Down);
    EXPECT_TRUE(results().hasFocus());
    QTest::keyClick(&results(), Qt::Key_Down);
    QTest::keyClick(&results(), Qt::Key_Return);
    EXPECT_EQ(results().currentRow(), 1);
    EXPECT_NE(browser().page(), 0U);
    QTest::keyClick(&words(), Qt::Key_Escape);
    EXPECT_TRUE(contents().isVisible());
    EXPECT_EQ(words().text(), "");
}

TEST_F(Help, TellsWhenNoPageHasTheWords) {
    QTest::keyClicks(&words(), "bogus");
    ASSERT_EQ(results().count(), 1);
    EXPECT_EQ(results().item(0)->text(), "No page has these words.");
    QTest::keyClick(&words(), Qt::Key_Return);
    EXPECT_EQ(browser().page(), 0U);
}

TEST_F(Help, FindsOnThePageForwardAndBackwardRoundItsEnds) {
    browser().showPage(2);
    run("find");
    auto* text = window_.findChild<QLineEdit*>("findText");
    ASSERT_TRUE(text->isVisible());
    QTest::keyClicks(text, "help");
    EXPECT_EQ(browser().extraSelections().size(), 2) << "every place is marked";
    const int first = browser().textCursor().selectionStart();
    EXPECT_EQ(browser().textCursor().selectedText(), "help");
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(browser().textCursor().selectedText(), "Help");
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(browser().textCursor().selectionStart(), first) << "round the end";
    QTest::keyClick(&window_, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(browser().textCursor().selectedText(), "Help");
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(text->isVisible());
    EXPECT_TRUE(browser().extraSelections().isEmpty());
}

TEST_F(Help, SourceIsCopiedWithItsBlanksAndLineBreaks) {
    browser().showPage(1);
    QTextCursor marked = browser().document()->find("start:");
    marked.setPosition(browser().document()->find("ret", marked).position(), QTextCursor::KeepAnchor);
    browser().setTextCursor(marked);
    QTest::keyClick(&browser(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "start:\n        ld a,1  ; one\n\n\tret");
}

TEST_F(Help, LettersGrowAndShrinkAndComeBack) {
    const qreal normal = browser().font().pointSizeF();
    run("zoomIn");
    run("zoomIn");
    EXPECT_GT(browser().font().pointSizeF(), normal);
    run("zoomOut");
    run("zoomNormal");
    EXPECT_EQ(browser().font().pointSizeF(), normal);
}

TEST_F(Help, ADarkThemeGetsDarkColours) {
    browser().showPage(1);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    browser().setPalette(dark);
    EXPECT_EQ(browser().document()->defaultStyleSheet(), pageStyle(dark));
    EXPECT_EQ(browser().page(), 1U);
    EXPECT_GT(errorBackground(dark).red(), errorBackground(dark).green() + 40);
    EXPECT_LT(errorBackground(dark).lightness(), 128) << "white letters stay readable";
    EXPECT_GT(errorBackground(QPalette(Qt::white)).lightness(), 128) << "and black ones";
}

TEST(HelpOfADamagedFile, OpensWithoutPages) {
    HelpWindow window("<!DOCTYPE html>");
    window.show();
    for (const char* action : {"home", "nextPage", "previousPage", "back", "forward"})
        window.findChild<QAction*>(action)->trigger();
    window.findChild<QLineEdit*>("words")->setText("help");
    EXPECT_EQ(window.findChild<HelpBrowser*>("page")->toPlainText(), "");
}

}  // namespace kav::viewer

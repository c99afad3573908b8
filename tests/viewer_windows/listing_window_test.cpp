// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/listing_window.h"

#include "viewer/colours.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>

namespace kav::viewer {

namespace {

constexpr const char* kListing =
    "0001   9D93  BB 6D              .db $BB,$6D\r\n"
    "0002   9D95  21 00 00           ld hl,mesage\r\n"
    "0003   9D98  C9                 ret\r\n"
    "0004   9D99  CD 00 00           call nowhere\r\n"
    "temp.z80 has 2 errors:\r\n"
    "temp.z80 line 0002: Label not found: (MESAGE)\r\n"
    "temp.z80 line 0004: Label not found: (NOWHERE)\r\n";

/// A window with the listing, shown.
class Listing : public testing::Test {
  protected:
    void open(const std::string& bytes) {
        window_ = std::make_unique<ListingWindow>("temp.lst", bytes);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));  // keys go to the active window
    }

    ListingView& view() { return *window_->findChild<ListingView*>("listing"); }
    QListWidget& errors() { return *window_->findChild<QListWidget*>("errors"); }
    int currentLine() { return view().textCursor().blockNumber(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view(), static_cast<Qt::Key>(key), modifiers);
    }

    std::unique_ptr<ListingWindow> window_;
};

}  // namespace

TEST_F(Listing, ShowsTheTextAsItIsAndCannotBeChanged) {
    open("a\tb\r\n  c");
    EXPECT_EQ(view().toPlainText(), "a\tb\n  c");
    EXPECT_TRUE(view().isReadOnly());
    EXPECT_FALSE(errors().isVisible());
    EXPECT_FALSE(window_->findChild<QAction*>("nextError")->isEnabled());
    EXPECT_EQ(window_->statusBar()->currentMessage(), "No errors.");
}

TEST_F(Listing, OpensOnTheFirstErrorAndTellsThemAll) {
    open(kListing);
    ASSERT_EQ(errors().count(), 2);
    EXPECT_TRUE(errors().isVisible());
    EXPECT_EQ(errors().item(0)->text(), "Line 2: Label not found: (MESAGE)");
    EXPECT_EQ(currentLine(), 1);
    ASSERT_EQ(view().extraSelections().size(), 1);
    EXPECT_EQ(view().extraSelections()[0].cursor.blockNumber(), 1)
        << "it stands out from the other red lines";
}

TEST_F(Listing, AKeyGoesFromErrorToErrorRoundTheEnd) {
    open(kListing);
    press(Qt::Key_F4);
    EXPECT_EQ(currentLine(), 3);
    EXPECT_EQ(errors().currentRow(), 1);
    press(Qt::Key_F4);
    EXPECT_EQ(currentLine(), 1);
    press(Qt::Key_F4, Qt::ShiftModifier);
    EXPECT_EQ(currentLine(), 3);
}

TEST_F(Listing, TheOnlyErrorIsComeBackTo) {
    open("0001   0000   nop\ntemp.z80 line 0001: Unrecognized instruction: (NOPE)\n");
    view().moveCursor(QTextCursor::End);
    press(Qt::Key_F4);
    EXPECT_EQ(currentLine(), 0);
}

TEST_F(Listing, AnErrorOfTheListLeadsToItsLine) {
    open(kListing);
    errors().setCurrentRow(1);
    EXPECT_EQ(currentLine(), 3);
    view().moveCursor(QTextCursor::Start);
    emit errors().itemClicked(errors().item(1));
    EXPECT_EQ(currentLine(), 3) << "the current one as well";
}

TEST_F(Listing, PaintsTheLinesWithErrorsOnAnotherBackground) {
    open(kListing);
    view().moveCursor(QTextCursor::End);
    const QImage picture = view().viewport()->grab().toImage();
    const auto background = [&](int line) {
        const QTextCursor cursor(view().document()->findBlockByNumber(line));
        const int y = view().cursorRect(cursor).center().y();
        return picture.pixelColor(picture.width() - 2, y);
    };
    const QColor marked = errorBackground(view().palette());
    EXPECT_NE(marked, view().palette().color(QPalette::Base));
    EXPECT_NE(background(0), marked);
    EXPECT_EQ(background(1), marked);
    EXPECT_NE(background(2), marked);
    EXPECT_EQ(background(3), marked);
    EXPECT_EQ(background(5), marked);
}

TEST_F(Listing, FindsText) {
    open(kListing);
    press(Qt::Key_F, Qt::ControlModifier);
    auto* text = window_->findChild<QLineEdit*>("findText");
    ASSERT_TRUE(text->isVisible());
    text->clear();
    QTest::keyClicks(text, "NOWHERE");
    EXPECT_EQ(currentLine(), 3);
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(currentLine(), 6);
    QTest::keyClicks(text, "!");
    EXPECT_EQ(window_->findChild<QLabel*>("findVerdict")->text(), "Not found");
    EXPECT_EQ(currentLine(), 6);
}

TEST_F(Listing, AHundredThousandLinesKeepTheirNumbersAndMarks) {
    std::string bytes;
    for (int line = 1; line <= 100'000; ++line)
        bytes += (line < 1000 ? "0" : "") + std::to_string(line) + "   9D95  00   nop\r\n";
    bytes += "temp.z80 line 9999: line 99999: Label not found: (FAR)\r\n";
    open(bytes);
    EXPECT_EQ(view().document()->blockCount(), 100'002);
    EXPECT_EQ(currentLine(), 99'998);
    EXPECT_TRUE(view().isMarked(99'998));
    EXPECT_FALSE(view().isMarked(9'998));
    EXPECT_TRUE(view().isMarked(100'000));
}

TEST_F(Listing, SeparatorsInTheTextDoNotShiftTheMarks) {
    open("; one\xE2\x80\xA9two\r\n0007   0000   nope\r\ntemp.z80 line 0007: message\r\n");
    EXPECT_EQ(currentLine(), 1);
    EXPECT_EQ(view().document()->blockCount(), 4);
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// The aids that know the language: the caret's panel and the hover over code.
#include "runtime/files.h"
#include "windows/main_window_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace kav::test {

class CodeAids : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        makeFolder(folder_.file("include"));
        writeFile(folder_.file("include/names.inc"), "FarAway .equ 8000h\r\n");
        start();
        compiler().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&compiler()));
    }

    void TearDown() override { QToolTip::hideText(); }

    [[nodiscard]] TextBox& box() { return active().txt(); }

    [[nodiscard]] std::string panel() {
        return compiler().statusBar()->findChild<QLabel*>("stat2")->text().toStdString();
    }

    /// Waits until the panel shows the text, as it does once the user pauses.
    [[nodiscard]] bool panelBecomes(const std::string& text) {
        return QTest::qWaitFor([&] { return panel() == text; });
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(box().viewport(), Qt::Key(key), modifiers);
    }

    void select(std::size_t start, std::size_t length) {
        box().setSelStart(start);
        box().setSelLength(length);
    }
};

class CaretPanel : public CodeAids {};

TEST_F(CaretPanel, FollowsTheCaret) {
    EXPECT_TRUE(panelBecomes("Line 1, column 1"));
    QTest::keyClicks(box().viewport(), " nop");
    EXPECT_TRUE(panelBecomes("Line 1, column 5"));
    press(Qt::Key_Return);
    EXPECT_TRUE(panelBecomes("Line 2, column 1"));
    press(Qt::Key_Up);
    press(Qt::Key_End);
    EXPECT_TRUE(panelBecomes("Line 1, column 5"));
}

TEST_F(CaretPanel, CountsCharactersAndATabAsOne) {
    box().setBytes("\t;\xC3\xA9\xE2\x82\xAC\xFF!");
    box().setSelStart(box().byteLength());
    EXPECT_TRUE(panelBecomes("Line 1, column 7"));
}

TEST_F(CaretPanel, TellsWhatTheSelectedStatementsCost) {
    box().setBytes("#include \"names.inc\"\r\nhere: ld hl,FarAway\r\n djnz here\r\n .db 1,2,3\r\n");
    select(22, 20);
    EXPECT_TRUE(panelBecomes("Line 2, column 21   3 bytes, 10 T"));
    select(22, 33);
    EXPECT_TRUE(panelBecomes("Line 4, column 1   5 bytes, 23/18 T"));
    select(56, 3);
    EXPECT_TRUE(panelBecomes("Line 4, column 5   3 bytes"));
    box().setSelStart(22);
    EXPECT_TRUE(panelBecomes("Line 2, column 1"));
}

TEST_F(CaretPanel, LeavesOutWhatCannotBeAssembled) {
    box().setBytes(" nop\r\n frob\r\n ret\r\n");
    select(0, 19);
    EXPECT_TRUE(panelBecomes("Line 4, column 1   2 bytes, 14 T, 1 line left out"));
}

TEST_F(CaretPanel, IsThatOfTheActiveDocument) {
    Doc& first = active();
    box().setBytes(" nop");
    box().setSelStart(4);
    ASSERT_TRUE(panelBecomes("Line 1, column 5"));
    compiler().newfile("");
    EXPECT_TRUE(panelBecomes("Line 1, column 1"));
    first.txt().setSelStart(2);
    QTest::qWait(0);
    EXPECT_EQ(panel(), "Line 1, column 1");
    first.takeFocus();
    EXPECT_TRUE(panelBecomes("Line 1, column 3"));
}

TEST_F(CaretPanel, IsEmptyWithoutADocument) {
    ASSERT_TRUE(panelBecomes("Line 1, column 1"));
    active().close();
    ASSERT_TRUE(documents().empty());
    EXPECT_TRUE(panelBecomes(""));
}

TEST_F(CaretPanel, LeavesTheFirstPanelAlone) {
    compiler().showStatus("Compiling...");
    QTest::keyClicks(box().viewport(), " nop");
    EXPECT_TRUE(panelBecomes("Line 1, column 5"));
    EXPECT_EQ(status(), "Compiling...");
}

TEST_F(CaretPanel, ChangesNoTextAndNoMarker) {
    box().setBytes(" nop\r\n");
    box().Tag = "0";
    select(0, 4);
    ASSERT_TRUE(panelBecomes("Line 1, column 5   1 byte, 4 T"));
    EXPECT_EQ(box().bytes(), " nop\r\n");
    EXPECT_EQ(box().Tag, "0");
    EXPECT_FALSE(box().isUndoAvailable());
}

TEST_F(CaretPanel, HasNoCostsForAVeryLongDocument) {
    std::string text;
    while (text.size() < 10'000'000)
        text += " nop ; a line of some length\r\n";
    box().setBytes(text);
    select(0, 4);
    QTest::keyClicks(box().viewport(), " ret");
    EXPECT_TRUE(panelBecomes("Line 1, column 5"));
    EXPECT_EQ(box().byteLength(), text.size());
}

class HoverOverCode : public CodeAids {
  protected:
    void SetUp() override {
        CodeAids::SetUp();
        box().setBytes("#include \"names.inc\"\r\n ld hl,FarAway ; far\r\n");
    }

    /// Rests the mouse on a byte of the text; tells what a tooltip shows then.
    std::string textAt(std::size_t position) {
        const QPoint place = box().pointAt(position) + QPoint(2, box().lineHeight() / 2);
        return textAtPoint(place);
    }

    std::string textAtPoint(const QPoint& place) {
        QHelpEvent event(QEvent::ToolTip, place, box().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(box().viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    }

    static std::string shownText(const std::string& text) {
        return "<p style='white-space:pre'>" + text + "</p>";
    }
};

TEST_F(HoverOverCode, TellsANamesValue) {
    EXPECT_EQ(textAt(30), shownText("FarAway = $8000 (32768)\nnames.inc, line 1"));
}

TEST_F(HoverOverCode, TellsAnInstructionsBytesAndTime) {
    EXPECT_EQ(textAt(23), shownText("21 00 80\n3 bytes, 10 T"));
}

TEST_F(HoverOverCode, IsAboutTheTextAsItIsNow) {
    box().setBytes(" ld a,5\r\n");
    EXPECT_EQ(textAt(1), shownText("3E 05\n2 bytes, 7 T"));
}

TEST_F(HoverOverCode, TakesNothingOfTheTextForMarkup) {
    box().setBytes("#define less(x) x<<b>1\r\n ld a,less(3)\r\n");
    EXPECT_EQ(textAt(30), shownText("#define less(x) x&lt;&lt;b&gt;1\nline 1"));
}

TEST_F(HoverOverCode, TellsNothingElsewhere) {
    EXPECT_EQ(textAt(40), "") << "in a comment";
    EXPECT_EQ(textAt(22), "") << "in front of the statement";
    EXPECT_EQ(textAtPoint({1, box().pointAt(30).y() + 2}), "") << "in the margin";
    EXPECT_EQ(textAtPoint(box().viewport()->rect().bottomRight()), "") << "below the text";
}

TEST_F(HoverOverCode, TellsNothingWithoutTheKeyboard) {
    box().clearFocus();
    EXPECT_EQ(textAt(30), "");
}

TEST_F(HoverOverCode, TellsNothingWhileTheMouseIsDown) {
    QTest::mousePress(box().viewport(), Qt::LeftButton, Qt::NoModifier, box().pointAt(30));
    EXPECT_EQ(textAt(30), "");
    QTest::mouseRelease(box().viewport(), Qt::LeftButton, Qt::NoModifier, box().pointAt(30));
}

}  // namespace kav::test

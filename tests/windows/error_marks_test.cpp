// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/error_marks.h"

#include "documents/aids/margins.h"
#include "windows/main_window_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace kav::test {

class ErrorMark : public MainWindow {
  protected:
    using Sci = QsciScintillaBase;

    void SetUp() override {
        MainWindow::SetUp();
        start();
        box().setBytes("one\r\ntwo\r\nthree\r\nfour\r\n");
        box().Tag = "0";
    }

    [[nodiscard]] TextBox& box() { return active().txt(); }

    /// The lines that are marked, from 1: "2 4".
    [[nodiscard]] std::string markedLines() {
        std::string marked;
        for (int line = 0; line < box().lines(); ++line) {
            if (box().SendScintilla(Sci::SCI_MARKERGET, static_cast<uintptr_t>(line)) == 0) continue;
            if (!marked.empty()) marked += ' ';
            marked += std::to_string(line + 1);
        }
        return marked;
    }

    [[nodiscard]] long marginWidth() { return box().SendScintilla(Sci::SCI_GETMARGINWIDTHN, kErrorMargin); }

    /// What is told when the mouse rests on the margin beside the line.
    [[nodiscard]] QString toldAt(int line, int x = 3) {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        const long height = box().SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL);
        const QPoint at(x, static_cast<int>(height * (line - 1) + height / 2));
        QHelpEvent event(QEvent::ToolTip, at, box().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(box().viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    /// Builds the active document; the listing then tells of the errors.
    void failBuild(const std::string& listing) {
        desktop_.boxes.typed.emplace_back("game");
        choose("comp");
        writeFile(folder_.file("temp.lst"), listing);
        desktop_.boxes.answers.push_back(BoxAnswer::No);
        writeFile(folder_.file("errLog.txt"), "1\r\n");
        ASSERT_TRUE(QTest::qWaitFor([this] { return status() == "There were errors."; }));
    }
};

TEST_F(ErrorMark, StandsAtEachLineWithAnError) {
    EXPECT_EQ(marginWidth(), 0);
    active().showErrors({{2, "bad operand"}, {4, "no such label"}});
    EXPECT_EQ(markedLines(), "2 4");
    EXPECT_GT(marginWidth(), 0);
    active().showErrors({});
    EXPECT_EQ(markedLines(), "");
    EXPECT_EQ(marginWidth(), 0);
}

TEST_F(ErrorMark, TellsItsMessagesWhenTheMouseRestsOnTheMargin) {
    active().showErrors({{2, "bad <b>operand</b>"}, {2, "and another"}});
    EXPECT_TRUE(toldAt(2).contains("bad &lt;b&gt;operand&lt;/b&gt;"));
    EXPECT_TRUE(toldAt(2).contains("and another"));
    EXPECT_EQ(toldAt(1), "");
    EXPECT_EQ(toldAt(2, 200), "") << "over the text";
    EXPECT_EQ(toldAt(9), "") << "below the text";
}

TEST_F(ErrorMark, BeyondTheTextIsPutAtItsEndAndWithoutALineNowhere) {
    active().showErrors({{99, "missing #endif"}, {0, "no line"}, {-3, "no line"}});
    EXPECT_EQ(markedLines(), "5");
    EXPECT_TRUE(toldAt(5).contains("missing #endif"));
}

TEST_F(ErrorMark, MovesWithItsLine) {
    active().showErrors({{3, "bad"}});
    box().setSelStart(0);
    QTest::keyClick(box().viewport(), Qt::Key_Return);
    EXPECT_EQ(markedLines(), "4");
    EXPECT_TRUE(toldAt(4).contains("bad"));
    box().undo();
    EXPECT_EQ(markedLines(), "3");
}

TEST_F(ErrorMark, StaysWhenTheTextIsReplacedAsAWhole) {
    active().showErrors({{1, "first"}, {3, "third"}});
    box().setBytes("1\r\n2\r\n3\r\n");
    EXPECT_EQ(markedLines(), "1 3");
    box().rewrite("a\r\nb\r\nc\r\nd", 0);
    EXPECT_EQ(markedLines(), "1 3");
    box().undo();
    QCoreApplication::processEvents();
    EXPECT_EQ(markedLines(), "1 3");
    EXPECT_TRUE(toldAt(3).contains("third"));
    box().setBytes("only one line");
    EXPECT_EQ(markedLines(), "1");
}

TEST_F(ErrorMark, StaysAtItsLineWhenTheCodeIsOptimized) {
    box().setBytes(" ld a,0\r\n cp 0\r\n nonsense\r\n");
    active().showErrors({{3, "what is that"}});
    desktop_.boxes.answers = {BoxAnswer::Yes};
    choose("ocode");
    EXPECT_EQ(box().bytes(), " xor a\r\n or a\r\n nonsense\r\n");
    EXPECT_EQ(markedLines(), "3");
}

TEST_F(ErrorMark, IsNoChangeOfTheText) {
    active().showErrors({{2, "bad"}});
    box().grab();
    EXPECT_EQ(box().Tag, "0");
    EXPECT_FALSE(box().isUndoAvailable());
}

TEST_F(ErrorMark, ComesFromABuildThatFailed) {
    failBuild("temp errors\r\ntemp.z80 line 0002: bad operand\r\n");
    EXPECT_EQ(markedLines(), "2");
    EXPECT_TRUE(toldAt(2).contains("bad operand"));
    EXPECT_EQ(box().Tag, "0");
}

TEST_F(ErrorMark, GoesWithTheNextBuildOfTheDocument) {
    failBuild("temp errors\r\ntemp.z80 line 0002: bad operand\r\n");
    desktop_.boxes.typed.emplace_back("game");
    choose("comp");
    EXPECT_EQ(markedLines(), "");
}

TEST_F(ErrorMark, StaysWhenAnotherDocumentIsBuilt) {
    failBuild("temp errors\r\ntemp.z80 line 0002: bad operand\r\n");
    Doc& built = active();
    choose("newasm");
    desktop_.boxes.typed.emplace_back("other");
    choose("comp");
    built.takeFocus();
    EXPECT_EQ(markedLines(), "2");
}

TEST_F(ErrorMark, OfADocumentThatIsClosedMeanwhileIsNoMatter) {
    desktop_.boxes.typed.emplace_back("game");
    choose("comp");
    active().close();
    ASSERT_EQ(documents().size(), 0);
    writeFile(folder_.file("temp.lst"), "temp errors\r\ntemp.z80 line 0002: bad operand\r\n");
    desktop_.boxes.answers = {BoxAnswer::No};
    writeFile(folder_.file("errLog.txt"), "1\r\n");
    EXPECT_TRUE(QTest::qWaitFor([this] { return status() == "There were errors."; }));
}

}  // namespace kav::test

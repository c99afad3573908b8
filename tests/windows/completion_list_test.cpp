// SPDX-License-Identifier: GPL-3.0-or-later
// The list of words that may be meant: when it comes up, and that no key changes its meaning by it.
#include "runtime/files.h"
#include "windows/main_window_fixture.h"

#include <QApplication>
#include <QListWidget>

namespace kav::test {

class CompletionListOf : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        makeFolder(folder_.file("include"));
        writeFile(folder_.file("include/names.inc"), "FarAway .equ 8000h\r\nFarther .equ 9000h\r\n");
        start();
        compiler().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&compiler()));
    }

    [[nodiscard]] TextBox& box() { return active().txt(); }

    /// The list, or nothing where it is not shown.
    [[nodiscard]] QListWidget* list() {
        auto* list = compiler().findChild<QListWidget*>("completions");
        return list != nullptr && list->isVisible() ? list : nullptr;
    }

    /// The words shown, separated by blanks.
    [[nodiscard]] std::string words() {
        std::string text;
        for (int row = 0; list() != nullptr && row < list()->count(); ++row)
            text += (row == 0 ? "" : " ") + list()->item(row)->text().toStdString();
        return text;
    }

    void type(const char* text) { QTest::keyClicks(box().viewport(), text); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(box().viewport(), Qt::Key(key), modifiers);
    }

    /// Opens a document that includes names.inc, the caret in its third line, once its names are known.
    void openWithNames() {
        box().setBytes("#include \"names.inc\"\r\nStart: nop\r\n");
        box().setSelStart(0);
        box().setSelLength(box().byteLength());
        auto* panel = compiler().statusBar()->findChild<QLabel*>("stat2");
        ASSERT_TRUE(QTest::qWaitFor([&] { return panel->text().endsWith("4 T"); }));
        box().setSelStart(box().byteLength());
    }
    [[nodiscard]] std::string typedText() { return box().bytes().substr(34); }
};

TEST_F(CompletionListOf, MnemonicsComesUpWithTheSecondLetter) {
    type(" d");
    EXPECT_EQ(words(), "");
    type("j");
    EXPECT_EQ(words(), "djnz");
    type("n");
    EXPECT_EQ(words(), "djnz");
    type("z");
    EXPECT_EQ(words(), "") << "the word is known";
}

TEST_F(CompletionListOf, NamesHoldsThoseOfTheDocumentAndItsIncludeFiles) {
    openWithNames();
    type(" jp far");
    EXPECT_EQ(words(), "FarAway Farther");
    type("x");
    EXPECT_EQ(words(), "");
    press(Qt::Key_Backspace);
    type("t");
    EXPECT_EQ(words(), "Farther");
}

TEST_F(CompletionListOf, NamesGrowsAgainWhenLettersAreTakenBack) {
    openWithNames();
    type(" jp fart");
    EXPECT_EQ(words(), "Farther");
    press(Qt::Key_Backspace);
    box().repaint();
    EXPECT_EQ(words(), "FarAway Farther");
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    box().repaint();
    EXPECT_EQ(words(), "");
}

TEST_F(CompletionListOf, WordsChangesNothingOfWhatIsTypedFast) {
    const char* program = "start:  ld hl,msg \\ dj start ; dj\r .db \"dj\",$fa\r\tpu\tad\r dj\r";
    type(program);
    EXPECT_EQ(box().bytes(), "start:  ld hl,msg \\ dj start ; dj\r\n .db \"dj\",$fa\r\n\tpu\tad\r\n dj\r\n");
}

TEST_F(CompletionListOf, WordsLeavesEnterAndTabAlone) {
    type(" dj");
    ASSERT_EQ(words(), "djnz");
    press(Qt::Key_Return);
    EXPECT_EQ(words(), "");
    type(" dj");
    ASSERT_EQ(words(), "djnz");
    press(Qt::Key_Tab);
    EXPECT_EQ(words(), "");
    type("ld");
    press(Qt::Key_Tab);
    EXPECT_EQ(box().bytes(), " dj\r\n dj\tld\t");
}

TEST_F(CompletionListOf, WordsGivesTheOneThatTheUserHasGoneTo) {
    openWithNames();
    type(" jp fa");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(typedText(), " jp Farther");
    EXPECT_EQ(words(), "");
    press(Qt::Key_Return);
    type(" DJ");
    press(Qt::Key_Up);
    press(Qt::Key_Tab);
    EXPECT_EQ(typedText(), " jp Farther\r\n DJNZ");
}

TEST_F(CompletionListOf, WordsStaysWithinItself) {
    openWithNames();
    type(" jp fa");
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(list()->currentRow(), 1);
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Up);
    EXPECT_EQ(list()->currentRow(), 0);
}

TEST_F(CompletionListOf, WordsForgetsWhereTheUserWasWhenTypingGoesOn) {
    openWithNames();
    type(" jp fa");
    press(Qt::Key_Down);
    type("r");
    press(Qt::Key_Return);
    EXPECT_EQ(typedText(), " jp far\r\n");
}

TEST_F(CompletionListOf, WordsIsUndoneInOneStep) {
    openWithNames();
    type(" jp fa");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_EQ(typedText(), " jp FarAway");
    box().undo();
    EXPECT_EQ(typedText(), " jp fa");
    box().redo();
    EXPECT_EQ(typedText(), " jp FarAway");
}

TEST_F(CompletionListOf, WordsEndsWithEscape) {
    type(" dj");
    press(Qt::Key_Escape);
    EXPECT_EQ(words(), "");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(box().bytes(), " dj\r\n");
}

TEST_F(CompletionListOf, WordsEndsWhereTheCaretLeavesTheWord) {
    for (const int key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Space, Qt::Key_Comma}) {
        box().setBytes("");
        type(" dj");
        ASSERT_EQ(words(), "djnz");
        press(key);
        box().repaint();
        EXPECT_EQ(words(), "") << key;
    }
}

TEST_F(CompletionListOf, WordsEndsWithTheKeyboardsFocus) {
    type(" dj");
    ASSERT_EQ(words(), "djnz");
    compiler().newfile("");
    EXPECT_EQ(words(), "");
}

TEST_F(CompletionListOf, WordsEndsWhenItsDocumentIsMoved) {
    type(" dj");
    ASSERT_EQ(words(), "djnz");
    active().move(active().pos() + QPoint(10, 10));
    EXPECT_EQ(words(), "");
}

TEST_F(CompletionListOf, WordsCanBeReadOnADarkDesktop) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(50, 50, 50), QColor(30, 30, 30)));
    QCoreApplication::processEvents();
    type(" dj");
    ASSERT_NE(list(), nullptr);
    const QPalette& palette = list()->palette();
    const QImage picture = list()->viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() - 1, 0), palette.color(QPalette::Base));
    EXPECT_LT(palette.color(QPalette::Base).lightness(), 80);
    EXPECT_GT(palette.color(QPalette::Text).lightness(), 170);
    QApplication::setPalette(light);
}

TEST_F(CompletionListOf, WordsCanBeAskedFor) {
    openWithNames();
    type(" ");
    press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_NE(list(), nullptr);
    EXPECT_GT(list()->count(), 60);
    press(Qt::Key_Escape);
    type("jp f");
    EXPECT_EQ(words(), "");
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(words(), "FarAway Farther");
    press(Qt::Key_Tab);
    EXPECT_EQ(typedText(), " jp FarAway");
}

TEST_F(CompletionListOf, WordsIsAskedForInVainWhereNoneIsMeant) {
    press(Qt::Key_Space, Qt::ControlModifier);
    type("st ; a");
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(words(), "");
    EXPECT_EQ(box().bytes(), "st ; a");
}

TEST_F(CompletionListOf, WordsCanBeClicked) {
    openWithNames();
    type(" jp fa");
    ASSERT_NE(list(), nullptr);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list()->visualItemRect(list()->item(1)).center());
    EXPECT_EQ(typedText(), " jp Farther");
    EXPECT_TRUE(box().hasFocus());
}

TEST_F(CompletionListOf, WordsStandsBelowItsWordWithinTheWindow) {
    openWithNames();
    type(" jp fa");
    const QPoint word = box().viewport()->mapTo(&compiler(), box().pointAt(box().byteLength() - 2));
    EXPECT_EQ(list()->geometry().topLeft(), word + QPoint(0, box().lineHeight()));
    EXPECT_TRUE(compiler().rect().contains(list()->geometry()));
    press(Qt::Key_Escape);
    compiler().resize(500, 400);
    active().showMaximized();
    while (box().pointAt(box().byteLength()).y() + 3 * box().lineHeight() < box().viewport()->height())
        press(Qt::Key_Return);
    type(" ");
    press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_NE(list(), nullptr);
    EXPECT_TRUE(compiler().rect().contains(list()->geometry()));
    const int caretTop = box().viewport()->mapTo(&compiler(), box().pointAt(box().byteLength())).y();
    EXPECT_LE(list()->geometry().bottom(), caretTop);
}

TEST_F(CompletionListOf, WordsMarksNothingAsChanged) {
    box().setBytes(" dj");
    box().setSelStart(3);
    box().Tag = "0";
    press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_EQ(words(), "djnz");
    press(Qt::Key_Escape);
    EXPECT_EQ(box().Tag, "0");
}

TEST_F(CompletionListOf, WordsGoesWithItsDocument) {
    type(" dj");
    ASSERT_EQ(words(), "djnz");
    box().Tag = "0";
    active().close();
    ASSERT_TRUE(documents().empty());
    EXPECT_EQ(compiler().findChild<QListWidget*>("completions"), nullptr);
}

}  // namespace kav::test

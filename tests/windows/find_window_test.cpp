// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/find_window.h"

#include "documents/edit_operations.h"
#include "windows/main_window_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace kav::test {

class FindWindow : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
        choose("fnd");
    }

    QDialog* window() { return compiler().findChild<QDialog*>("find"); }
    QLineEdit& box(const char* name) { return *window()->findChild<QLineEdit*>(name); }
    void press(const char* name) {
        QTest::mouseClick(window()->findChild<QPushButton*>(name), Qt::LeftButton);
    }
    void tickCaseSensitive() { window()->findChild<QCheckBox*>("cse")->setChecked(true); }

    void search(const std::string& text, const char* wanted, const char* replacement = "") {
        txt().setBytes(text);
        box("find").setText(wanted);
        box("rep").setText(replacement);
    }

    TextBox& txt() { return active().txt(); }
    Selection selection() { return {txt().selStart(), txt().selLength()}; }
};

TEST_F(FindWindow, ShowsItsControls) {
    EXPECT_EQ(window()->windowTitle(), "Find");
    EXPECT_EQ(window()->findChild<QCheckBox*>("cse")->text(), "Case Sensitive");
    EXPECT_EQ(window()->findChild<QPushButton*>("Command2")->text(), "Replace All");
    EXPECT_EQ(box("strt").text(), "1");
    EXPECT_FALSE(box("strt").isVisible());
    EXPECT_FALSE(window()->isModal());
}

TEST_F(FindWindow, DoesNotOpenWithoutADocument) {
    window()->close();
    active().close();
    ASSERT_TRUE(documents().empty());
    choose("fnd");
    EXPECT_EQ(window(), nullptr);
}

TEST_F(FindWindow, WalksThroughTheTextAndThenReportsNotFoundAgainAndAgain) {
    search("abab", "ab");
    press("Command1");
    EXPECT_EQ(selection(), (Selection{0, 2}));
    press("Command1");
    EXPECT_EQ(selection(), (Selection{2, 2}));
    desktop_.boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
    press("Command1");
    press("Command1");
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 2U);
    EXPECT_EQ(desktop_.boxes.shownBoxes[1].text, "ab not found.");
    EXPECT_EQ(desktop_.boxes.shownBoxes[1].title, "Find ab");
    EXPECT_EQ(desktop_.boxes.shownBoxes[1].icon, BoxIcon::Information);
    EXPECT_EQ(box("strt").text(), "4");
    press("Command4");
    EXPECT_EQ(box("strt").text(), "1");
}

TEST_F(FindWindow, FindsOverlappingMatches) {
    search("aaa", "aa");
    press("Command1");
    EXPECT_EQ(selection(), (Selection{0, 2}));
    press("Command1");
    EXPECT_EQ(selection(), (Selection{1, 2}));
}

TEST_F(FindWindow, CaseMeansTheOppositeToFindAndReplaceAll) {
    search("x LD a", "ld", "nop");
    press("Command2");
    EXPECT_EQ(txt().bytes(), "x LD a");
    press("Command1");
    EXPECT_EQ(selection(), (Selection{2, 2}));
    press("Command4");
    tickCaseSensitive();
    press("Command2");
    EXPECT_EQ(txt().bytes(), "x nop a");
}

TEST_F(FindWindow, ReplaceAllTakesPositionsFromTheTextAsItWas) {
    search("a a", "a", "bb");
    press("Command2");
    EXPECT_EQ(txt().bytes(), "bbbba");
    EXPECT_EQ(box("strt").text(), "4");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(FindWindow, ReplaceAllCoversOnlyTheRestOfTheText) {
    search("ab ab ab", "ab", "xy");
    press("Command1");
    press("Command2");
    EXPECT_EQ(txt().bytes(), "ab xy xy");
}

TEST_F(FindWindow, ReplaceAllIsOneStepOfUndo) {
    search("one two one", "one", "six");
    press("Command2");
    EXPECT_EQ(txt().bytes(), "six two six");
    txt().undo();
    EXPECT_EQ(txt().bytes(), "one two one");
    txt().redo();
    EXPECT_EQ(txt().bytes(), "six two six");
}

TEST_F(FindWindow, ReplacesAHundredThousandMatchesInFiveMegabytesAtOnce) {
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "    ld a,(hl)   ; one more line of a source of its size\r\n";
    search(text, "ld", "st");
    press("Command2");
    EXPECT_EQ(txt().bytes().substr(0, 6), "    st");
    txt().undo();
    EXPECT_TRUE(txt().bytes() == text);
}

TEST_F(FindWindow, ReplaceAllWithNothingFoundChangesNothing) {
    search("text", "none", "some");
    txt().Tag = "0";
    press("Command2");
    EXPECT_EQ(txt().bytes(), "text");
    EXPECT_FALSE(active().isModified());
    EXPECT_EQ(box("strt").text(), "1");
}

TEST_F(FindWindow, EndsSilentlyWhereThereIsNoPositionOrNoDocument) {
    search("text", "text", "");
    box("strt").setText("here");
    press("Command1");
    press("Command2");
    EXPECT_EQ(txt().bytes(), "text");
    active().txt().Tag = "0";
    active().close();
    ASSERT_TRUE(documents().empty());
    press("Command1");
    press("Command2");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(FindWindow, ItsTextBoxesKeepTheirOwnKeys) {
    search("text", "abc");
    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window(); }));
    box("find").setFocus();
    box("find").setCursorPosition(0);
    QTest::keyClick(&box("find"), Qt::Key_Delete);
    EXPECT_EQ(box("find").text(), "bc");
    EXPECT_EQ(txt().bytes(), "text");
}

TEST_F(FindWindow, EnterPressesTheButtonThatHasTheKeyboardAndFindsOtherwise) {
    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window(); }));
    search("abab", "ab", "c");
    box("find").setFocus();
    QTest::keyClick(&box("find"), Qt::Key_Return);
    EXPECT_EQ(selection(), (Selection{0, 2}));
    window()->activateWindow();
    box("rep").setFocus();
    for (const char* name : {"cse", "Command1", "Command2"}) {
        QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window()->focusWidget()->objectName(), name);
    }
    QTest::keyClick(window()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(txt().bytes(), "abc");
}

TEST_F(FindWindow, CancelClosesItAndTheNextOneStartsAtTheTop) {
    search("abab", "ab");
    press("Command1");
    press("Command3");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window(), nullptr);
    choose("fnd");
    EXPECT_EQ(box("strt").text(), "1");
}

}  // namespace kav::test

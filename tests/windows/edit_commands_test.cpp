// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/optimizer.h"
#include "windows/main_window_fixture.h"

namespace kav::test {

class EditMenu : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    TextBox& txt() { return active().txt(); }

    void select(const std::string& text, std::size_t start, std::size_t length) {
        txt().setBytes(text);
        txt().setSelStart(start);
        txt().setSelLength(length);
    }
};

TEST_F(EditMenu, CutMovesTheSelectionToTheClipboard) {
    select("one two", 0, 4);
    choose("cut");
    EXPECT_EQ(desktop_.clipboard.content, "one ");
    EXPECT_EQ(txt().bytes(), "two");
}

TEST_F(EditMenu, CopyLeavesTheText) {
    select("one\r\ntwo", 3, 2);
    choose("cpy");
    EXPECT_EQ(desktop_.clipboard.content, "\r\n");
    EXPECT_EQ(txt().bytes(), "one\r\ntwo");
}

TEST_F(EditMenu, CuttingOrCopyingNothingEmptiesTheClipboard) {
    select("text", 2, 0);
    for (const char* command : {"cut", "cpy"}) {
        desktop_.clipboard.content = "earlier";
        choose(command);
        EXPECT_EQ(desktop_.clipboard.content, "") << command;
    }
    EXPECT_EQ(txt().bytes(), "text");
}

TEST_F(EditMenu, PasteReplacesTheSelection) {
    select("one two", 4, 3);
    desktop_.clipboard.content = "and\r\nmore";
    choose("pste");
    EXPECT_EQ(txt().bytes(), "one and\r\nmore");
    EXPECT_EQ(txt().selStart(), 13U);
}

TEST_F(EditMenu, PasteInsertsAtTheCaret) {
    select("onetwo", 3, 0);
    desktop_.clipboard.content = "-";
    choose("pste");
    EXPECT_EQ(txt().bytes(), "one-two");
}

TEST_F(EditMenu, DeleteRemovesTheSelection) {
    select("one two", 0, 4);
    choose("dlll");
    EXPECT_EQ(txt().bytes(), "two");
}

TEST_F(EditMenu, DeleteBeforeALineBreakJoinsTheTwoLines) {
    select("one\r\ntwo", 3, 0);
    choose("dlll");
    EXPECT_EQ(txt().bytes(), "onetwo");
}

TEST_F(EditMenu, DeleteAtTheEndRemovesNothing) {
    select("one", 3, 0);
    txt().Tag = "0";
    choose("dlll");
    EXPECT_EQ(txt().bytes(), "one");
    EXPECT_FALSE(active().isModified());
}

TEST_F(EditMenu, SelectAllTakesTheWholeText) {
    select("one\r\ntwo", 8, 0);
    choose("slall");
    EXPECT_EQ(txt().selStart(), 0U);
    EXPECT_EQ(txt().selLength(), 8U);
}

TEST_F(EditMenu, SelectAllInAnEmptyDocumentSelectsNothing) {
    choose("slall");
    EXPECT_EQ(txt().selLength(), 0U);
}

TEST_F(EditMenu, TheOptimizerAsksAndRewrites) {
    txt().setBytes("ld a,0 ; clear\r\ncp 0\r\nld a,00");
    txt().Tag = "0";
    desktop_.boxes.answers = {BoxAnswer::Yes};
    choose("ocode");
    EXPECT_EQ(txt().bytes(), "xor a ; clear\r\nor a\r\nxor a0");
    EXPECT_TRUE(active().isModified());
    const MessageBox& box = desktop_.boxes.shownBoxes.at(0);
    EXPECT_EQ(box.title, "Optimize Code? - KAV Compiler");
    EXPECT_EQ(box.text, kOptimizeText);
    EXPECT_EQ(box.icon, BoxIcon::Question);
    EXPECT_EQ(box.buttons, BoxButtons::YesNo);
}

TEST_F(EditMenu, TheOptimizerAnsweredNoLeavesTextAndMarker) {
    txt().setBytes("cp 0");
    txt().Tag = "0";
    desktop_.boxes.answers = {BoxAnswer::No};
    choose("ocode");
    EXPECT_EQ(txt().bytes(), "cp 0");
    EXPECT_FALSE(active().isModified());
}

TEST_F(EditMenu, TheOptimizerCannotBeUndone) {
    txt().setBytes("cp 0");
    desktop_.boxes.answers = {BoxAnswer::Yes};
    choose("ocode");
    EXPECT_FALSE(txt().isUndoAvailable());
}

TEST_F(EditMenu, DoesNothingWithoutADocument) {
    active().close();
    ASSERT_TRUE(documents().empty());
    desktop_.clipboard.content = "kept";
    for (const char* command : {"cut", "cpy", "pste", "dlll", "slall", "ocode"})
        choose(command);
    EXPECT_EQ(desktop_.clipboard.content, "kept");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(EditMenu, ItsKeysBelongToTheMenuWhileADocumentHasTheKeyboard) {
    compiler().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&compiler()));
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(txt().viewport(), key, modifiers);
    };
    select("one\r\ntwo", 3, 0);
    press(Qt::Key_Delete, Qt::NoModifier);
    EXPECT_EQ(txt().bytes(), "onetwo");
    select("onetwo", 0, 3);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(desktop_.clipboard.content, "one");
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(txt().bytes(), "two");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(txt().bytes(), "onetwo");
}

}  // namespace kav::test

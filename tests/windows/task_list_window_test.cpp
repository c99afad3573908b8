// SPDX-License-Identifier: GPL-3.0-or-later
#include "tasks/task_list_window.h"

#include "windows/main_window_fixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace kav::test {

class TaskListWindow : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
        list().showList();
    }

    dbgr& list() { return compiler().taskList(); }
    QTreeWidget& tree() { return *list().findChild<QTreeWidget*>("TreeView1"); }
    QLineEdit& box(const char* name) { return *list().findChild<QLineEdit*>(name); }
    void press(const char* name) { QTest::mouseClick(list().findChild<QPushButton*>(name), Qt::LeftButton); }

    void click(int index) {
        const QRect place = tree().visualItemRect(tree().topLevelItem(index - 1));
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }

    void add(const char* document, const char* line, const char* text) {
        box("Text2").setText(document);
        box("Text3").setText(line);
        box("Text1").setText(text);
        press("Command1");
    }
};

TEST_F(TaskListWindow, AddsATaskWithFourDigitsAndSelectsIt) {
    add("2", "7", "look here");
    EXPECT_EQ(list().tasks().task(1).text, "Document2 Line 7 look here");
    EXPECT_EQ(list().tasks().task(1).tag, "20007");
    add("2", "123456", "far");
    EXPECT_EQ(list().tasks().task(2).tag, "23456");
    EXPECT_EQ(tree().currentItem(), tree().topLevelItem(1));
}

TEST_F(TaskListWindow, DeleteFinishedRemovesThreeInARow) {
    for (int i = 0; i < 4; ++i)
        add("1", "1", "x");
    for (int i = 0; i < 3; ++i)
        tree().topLevelItem(i)->setCheckState(0, Qt::Checked);
    press("Command2");
    EXPECT_EQ(list().tasks().count(), 1U);
    EXPECT_EQ(tree().topLevelItemCount(), 1);
}

TEST_F(TaskListWindow, InvertingTwiceRestoresTheTicks) {
    add("1", "1", "a");
    add("1", "2", "b");
    tree().topLevelItem(0)->setCheckState(0, Qt::Checked);
    press("Command4");
    EXPECT_EQ(tree().topLevelItem(0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(tree().topLevelItem(1)->checkState(0), Qt::Checked);
    press("Command4");
    EXPECT_TRUE(list().tasks().task(1).finished);
    EXPECT_FALSE(list().tasks().task(2).finished);
}

TEST_F(TaskListWindow, ChecksUnchecksAndDeletesAll) {
    add("1", "1", "a");
    add("1", "2", "b");
    press("Command5");
    EXPECT_EQ(tree().topLevelItem(1)->checkState(0), Qt::Checked);
    press("Command6");
    EXPECT_EQ(tree().topLevelItem(1)->checkState(0), Qt::Unchecked);
    press("Command7");
    EXPECT_EQ(list().tasks().count(), 0U);
}

TEST_F(TaskListWindow, DeleteRemovesTheSelectedTask) {
    add("1", "1", "a");
    add("1", "2", "b");
    click(1);
    press("Command3");
    ASSERT_EQ(list().tasks().count(), 1U);
    EXPECT_EQ(list().tasks().task(1).tag, "10002");
}

TEST_F(TaskListWindow, ClickingATaskLoadsItAndWritesTheEarlierOneBack) {
    add("1", "5", "a");
    add("2", "6", "b");
    click(1);
    EXPECT_EQ(box("Text1").text(), "Document1 Line 5 a");
    EXPECT_EQ(box("Text2").text(), "1");
    EXPECT_EQ(box("Text3").text(), "0005");
    box("Text1").setText("edited");
    box("Text3").setText("9");
    click(2);
    EXPECT_EQ(list().tasks().task(1).text, "edited");
    EXPECT_EQ(list().tasks().task(1).tag, "19");
    EXPECT_EQ(tree().topLevelItem(0)->text(0), "edited");
}

TEST_F(TaskListWindow, GotoBringsTheDocumentToTheFrontWithTheCaretAtTheEndOfTheLineBefore) {
    active().txt().setBytes("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
    choose("newasm");
    list().addTask("Document 1 Line 7:  x", "10007", 255);
    click(1);
    press("Command8");
    EXPECT_TRUE(QTest::qWaitFor([this] { return active().caption() == "Doc 1\tUntitled"; }));
    // Behind the CR that ends line 6.
    EXPECT_TRUE(QTest::qWaitFor([this] { return active().txt().selStart() == 17; }));
    EXPECT_EQ(active().txt().selLength(), 1U);
    EXPECT_EQ(compiler().values().gotoDocument, "0");
}

TEST_F(TaskListWindow, GotoBeyondTheLastLineGoesToTheBeginning) {
    active().txt().setBytes("one\r\ntwo");
    active().txt().setSelStart(6);
    list().addTask("x", "10099", 255);
    click(1);
    press("Command8");
    EXPECT_TRUE(QTest::qWaitFor([this] { return active().txt().selStart() == 0; }));
}

TEST_F(TaskListWindow, GotoWithoutASelectedTaskSaysSo) {
    desktop_.boxes.answers = {BoxAnswer::Ok};
    press("Command8");
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).text, "Invalid doc/line number");
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).title, "Goto Task");
    EXPECT_EQ(desktop_.boxes.shownBoxes.at(0).icon, BoxIcon::Information);
    EXPECT_EQ(compiler().values().gotoDocument, "0");
}

TEST_F(TaskListWindow, ClosingTheListClearsTheCheckMarkAndKeepsTheTasks) {
    add("1", "1", "a");
    EXPECT_TRUE(compiler().menuItem("vew_task")->isChecked());
    list().close();
    EXPECT_FALSE(compiler().menuItem("vew_task")->isChecked());
    choose("vew_task");
    EXPECT_EQ(list().tasks().count(), 1U);
}

TEST_F(TaskListWindow, ALongTaskShowsItsBeginning) {
    add("1", "1", std::string(200, 'x').c_str());
    click(1);
    EXPECT_EQ(box("Text1").cursorPosition(), 0);
}

TEST_F(TaskListWindow, TabGoesThroughTheBoxesAndEnterPressesTheButton) {
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &list(); }));
    box("Text2").setFocus();
    for (const char* name : {"Text3", "Text1", "Command1"}) {
        QTest::keyClick(list().focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(list().focusWidget()->objectName(), name);
    }
    QTest::keyClick(list().focusWidget(), Qt::Key_Return);
    EXPECT_EQ(list().tasks().count(), 1U);
}

TEST_F(TaskListWindow, EscapePutsItAway) {
    QTest::keyClick(&tree(), Qt::Key_Escape);
    EXPECT_FALSE(list().isVisible());
    EXPECT_FALSE(compiler().menuItem("vew_task")->isChecked());
}

}  // namespace kav::test

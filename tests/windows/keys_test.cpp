// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"
#include "tasks/task_list_window.h"
#include "windows/main_window_fixture.h"

#include <QTreeWidget>

namespace kav::test {

class Keys : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
        compiler().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&compiler()));
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(active().txt().viewport(), Qt::Key(key), modifiers);
    }
};

TEST_F(Keys, MenuShortcutsReachTheMenuFromTheText) {
    press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    desktop_.boxes.typed = {""};
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(0).title, "New KAV File");
}

TEST_F(Keys, CtrlABelongsToSaveAs) {
    active().txt().setBytes("text");
    desktop_.fileChooser.answers = {folder_.file("a.z80")};
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(readFile(folder_.file("a.z80")), "text\r\n");
    EXPECT_EQ(active().txt().selLength(), 0U);
}

TEST_F(Keys, CtrlLCompilesAndCutsNoLine) {
    active().txt().setBytes("one\r\ntwo");
    desktop_.boxes.typed = {"X"};
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(active().txt().bytes(), "one\r\ntwo");
    EXPECT_EQ(desktop_.launcher.launches.size(), 1U);
}

TEST_F(Keys, CtrlDDuplicatesNoLine) {
    active().txt().setBytes("one");
    desktop_.boxes.answers = {BoxAnswer::No};
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(active().txt().bytes(), "one");
}

TEST_F(Keys, CtrlF4ClosesTheDocument) {
    choose("newasm");
    ASSERT_EQ(documents().size(), 2U);
    press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(compiler().values().openDocuments, 1);
}

TEST_F(Keys, DeleteInTheTaskListRemovesATaskAndNoCharacter) {
    active().txt().setBytes("text");
    dbgr& list = compiler().taskList();
    list.addTask("a", "10001", 0);
    list.addTask("b", "10002", 0);
    list.showList();
    ASSERT_TRUE(QTest::qWaitFor([&list] { return QApplication::activeWindow() == &list; }));
    auto* tree = list.findChild<QTreeWidget*>("TreeView1");
    tree->setCurrentItem(tree->topLevelItem(0));
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Delete);
    ASSERT_EQ(list.tasks().count(), 1U);
    EXPECT_EQ(list.tasks().task(1).text, "b");
    EXPECT_EQ(active().txt().bytes(), "text");
}

TEST_F(Keys, MenuShortcutsDoNothingInTheTaskList) {
    dbgr& list = compiler().taskList();
    list.showList();
    ASSERT_TRUE(QTest::qWaitFor([&list] { return QApplication::activeWindow() == &list; }));
    QTest::keyClick(list.focusWidget(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(desktop_.boxes.askedBoxes.empty());
}

}  // namespace kav::test

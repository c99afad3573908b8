// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/custom_tools_window.h"

#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <QLineEdit>
#include <QPushButton>

namespace kav::test {

class CustomTools : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        preferences_.customTools[0] = {"Calculator", "/usr/bin/calc --big \"a b\""};
        preferences_.customTools[1] = {"Nothing", ""};
        preferences_.customTools[2] = {"", "/usr/bin/nameless"};
        start();
    }

    std::string path() { return folder_.file("prefs.ini"); }
    QWidget* dialog() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "custset" && window->isVisible()) return window;
        }
        return nullptr;
    }
    QLineEdit& box(const char* name) { return *dialog()->findChild<QLineEdit*>(name); }
    void press(const char* name) {
        QTest::mouseClick(dialog()->findChild<QPushButton*>(name), Qt::LeftButton);
    }
};

TEST_F(CustomTools, TheMenuStartsAToolInANormalWindow) {
    choose("set1", 0);
    ASSERT_EQ(desktop_.launcher.launches.size(), 1U);
    EXPECT_EQ(desktop_.launcher.launches[0].commandLine, "/usr/bin/calc --big \"a b\"");
    EXPECT_EQ(desktop_.launcher.launches[0].style, WindowStyle::NormalFocus);
}

TEST_F(CustomTools, AToolWithoutCommandLineOrNameStartsNothing) {
    choose("set1", 1);
    choose("set1", 2);
    EXPECT_TRUE(desktop_.launcher.launches.empty());
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    EXPECT_TRUE(compiler().menuItem("set1", 1)->isVisible());
    EXPECT_FALSE(compiler().menuItem("set1", 2)->isVisible());
}

TEST_F(CustomTools, AToolThatCannotBeStartedEndsTheCommandQuietly) {
    desktop_.launcher.process = [](const std::string&) { throw failureOf(kFileNotFound); };
    choose("set1", 0);
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(CustomTools, TheDialogShowsTheFileAndOkWritesAllOfIt) {
    PreferencesTable table(readFile(path()));
    table.setLine(1, "a header of its own");
    writeFile(path(), table.fileText());
    choose("setall");
    EXPECT_EQ(dialog()->windowTitle(), "Set Custom Tools");
    EXPECT_FALSE(dialog()->isModal());
    EXPECT_EQ(box("w1").text(), "Calculator");
    EXPECT_EQ(box("w4").text(), "");
    EXPECT_EQ(box("w6").text(), "/usr/bin/nameless");
    box("w5").setText("Named");
    press("Command1");
    EXPECT_EQ(dialog(), nullptr);
    table.setLine(14, "Named");
    EXPECT_EQ(readFile(path()), table.fileText());
}

TEST_F(CustomTools, TheMenuKeepsItsNamesUntilARestartAndANormalExitWritesThemBack) {
    choose("setall");
    box("w1").setText("Other");
    press("Command1");
    EXPECT_EQ(compiler().menuItem("set1", 0)->text(), "Calculator");
    compiler().close();
    EXPECT_EQ(PreferencesTable(readFile(path())).line(10), "Calculator");
}

TEST_F(CustomTools, CancelWritesNothing) {
    const std::string before = readFile(path());
    choose("setall");
    box("w1").setText("Other");
    press("Command2");
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(readFile(path()), before);
}

TEST_F(CustomTools, ChoosingItAgainShowsTheSameDialog) {
    choose("setall");
    QWidget* const first = dialog();
    choose("setall");
    EXPECT_EQ(dialog(), first);
}

TEST_F(CustomTools, AShortFileIsAFailureThatNobodyCatches) {
    writeFile(path(), "short\r\n");
    EXPECT_THROW(choose("setall"), Failure);
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

}  // namespace kav::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"
#include "windows/main_window_fixture.h"

#include <QMenuBar>

namespace kav::test {

class Menu : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }
};

TEST_F(Menu, ShowsTheTableInItsOrder) {
    QStringList shownNames;
    for (const QAction* top : compiler().menuBar()->actions()) {
        shownNames << top->objectName();
        for (const QAction* item : top->menu()->actions())
            shownNames << item->objectName();
    }
    QStringList tableNames;
    bool hiddenMenu = false;
    for (const MenuEntry& entry : menuTable()) {
        if (entry.depth == 0) hiddenMenu = !entry.visible;
        if (!hiddenMenu) tableNames << QString::fromStdString(std::string(entry.name));
    }
    EXPECT_EQ(shownNames, tableNames);
}

TEST_F(Menu, CarriesCaptionsShortcutsAndSeparators) {
    EXPECT_EQ(compiler().menuItem("comp")->text(), "Compile for Debug");
    EXPECT_EQ(compiler().menuItem("comp")->shortcut(), QKeySequence("Ctrl+L"));
    EXPECT_EQ(compiler().menuItem("dlll")->shortcut(), QKeySequence(Qt::Key_Delete));
    EXPECT_EQ(compiler().menuItem("sve")->shortcut(), QKeySequence("Ctrl+A"));
    EXPECT_TRUE(compiler().menuItem("seperator")->isSeparator());
}

TEST_F(Menu, HidesWhatIsHiddenByDesign) {
    EXPECT_FALSE(compiler().menuItem("fullcomp")->isVisible());
    EXPECT_FALSE(compiler().menuBar()->actions().contains(compiler().menuItem("qfm")));
}

TEST_F(Menu, ShowTaskManagerTogglesTheListAndItsCheckMark) {
    QAction* item = compiler().menuItem("vew_task");
    choose("vew_task");
    EXPECT_TRUE(item->isChecked());
    choose("vew_task");
    EXPECT_FALSE(item->isChecked());
}

TEST_F(Menu, RecentFilesOpenFromTheMenu) {
    writeFile(folder_.file("a&b.z80"), "nop");
    compiler().settop(folder_.file("a&b.z80"));
    compiler().settop("/none");
    choose("fil", 2);
    EXPECT_EQ(active().txt().bytes(), "nop");
    EXPECT_EQ(active().caption(), "Doc 2\t" + folder_.file("a&b.z80"));
}

}  // namespace kav::test

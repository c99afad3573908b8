// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/quick_list_window.h"

#include "windows/main_window_fixture.h"

#include <QContextMenuEvent>
#include <QListWidget>
#include <QMenu>

namespace kav::test {

class QuickList : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        writeFile(project("a.kvf"), "first");
        writeFile(project("b b.z80"), "second\r\n");
        start();
        choose("vew_list");
    }

    std::string project(const std::string& name) { return ApplicationFolder(folder_.path()).project(name); }
    QListWidget& list() { return *compiler().quickList().findChild<QListWidget*>("files"); }
    void press(Qt::Key key) { QTest::keyClick(&list(), key); }
};

TEST_F(QuickList, ListsTheFilesOfTheProjectsFolder) {
    EXPECT_EQ(compiler().quickList().windowTitle(), "QuickList");
    ASSERT_EQ(list().count(), 2);
    EXPECT_EQ(list().item(0)->text(), "a.kvf");
    EXPECT_EQ(list().item(1)->text(), "b b.z80");
    EXPECT_FALSE(compiler().quickList().isModal());
}

TEST_F(QuickList, EnterOpensTheCurrentFileAsANewDocument) {
    list().setCurrentRow(1);
    press(Qt::Key_Return);
    EXPECT_EQ(active().caption(), "Doc 2\t" + project("b b.z80"));
    EXPECT_EQ(active().txt().bytes(), "second\r\n");
    EXPECT_EQ(compiler().values().openDocuments, 2);
}

TEST_F(QuickList, ADoubleClickOpensTheFileUnderIt) {
    const QPoint place = list().visualItemRect(list().item(1)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(active().txt().bytes(), "second\r\n");
}

TEST_F(QuickList, OpeningAFileTwiceGivesTwoDocuments) {
    choose("openquik");
    choose("openquik");
    EXPECT_EQ(active().caption(), "Doc 3\t" + project("a.kvf"));
    EXPECT_EQ(documents().size(), 3);
}

TEST_F(QuickList, DeleteRemovesTheFileAtOnceAndKeepsItsName) {
    press(Qt::Key_Delete);
    EXPECT_FALSE(fileExists(project("a.kvf")));
    EXPECT_EQ(list().count(), 2);
    choose("delete_inviso");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(QuickList, TheMenuReportsAFileThatIsGone) {
    press(Qt::Key_Delete);
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("openquik");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 53in module openquik_Click: File not found"),
              std::string::npos);
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(QuickList, TheRightButtonShowsTheMenuOfTheList) {
    const QPoint place = list().visualItemRect(list().item(0)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, list().viewport()->mapToGlobal(place));
    QApplication::sendEvent(list().viewport(), &event);
    QMenu* menu = compiler().menuItem("qfm")->menu();
    EXPECT_TRUE(menu->isVisible());
    menu->close();
    EXPECT_TRUE(compiler().menuItem("rfrsh_invisi")->isEnabled());
    choose("rfrsh_invisi");
    EXPECT_EQ(list().count(), 2);
}

TEST_F(QuickList, ClosingItClearsTheCheckMarkAndShowingItReadsTheFolderAgain) {
    EXPECT_TRUE(compiler().menuItem("vew_list")->isChecked());
    compiler().quickList().close();
    EXPECT_FALSE(compiler().menuItem("vew_list")->isChecked());
    writeFile(project("c.asm"), "");
    choose("vew_list");
    EXPECT_TRUE(compiler().quickList().isVisible());
    EXPECT_EQ(list().count(), 3);
    choose("vew_list");
    EXPECT_FALSE(compiler().quickList().isVisible());
    EXPECT_FALSE(compiler().menuItem("vew_list")->isChecked());
}

TEST_F(QuickList, EscapePutsItAway) {
    press(Qt::Key_Escape);
    EXPECT_FALSE(compiler().quickList().isVisible());
    EXPECT_FALSE(compiler().menuItem("vew_list")->isChecked());
}

}  // namespace kav::test

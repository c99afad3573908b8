// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <filesystem>

namespace kav::test {

using StartUp = MainWindow;

TEST_F(StartUp, WithNothingToOpenShowsOneUntitledDocument) {
    start();
    ASSERT_EQ(documents().size(), 1);
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
    EXPECT_FALSE(compiler().menuItem("s_hamnibar")->isVisible());
}

TEST_F(StartUp, ReopensTheMostRecentFileInsteadOfAnUntitledDocument) {
    writeFile(folder_.file("a.z80"), " ret\r\n");
    preferences_.recentFiles = {folder_.file("a.z80"), "", "", ""};
    start();
    ASSERT_EQ(documents().size(), 1);
    EXPECT_EQ(active().caption(), "Doc 1\t" + folder_.file("a.z80"));
    EXPECT_EQ(active().txt().bytes(), " ret\r\n");
    // Reopening lists it once more.
    EXPECT_EQ(compiler().menuItem("fil", 2)->text().toStdString(), folder_.file("a.z80"));
}

TEST_F(StartUp, AMissingRecentFileIsReportedAndOpensNothing) {
    preferences_.recentFiles = {folder_.file("gone.z80"), "", "", ""};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    start();
    EXPECT_EQ(documents().size(), 0);
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 53in module fil_Click: "), std::string::npos);
}

TEST_F(StartUp, ACommandLinesFileGoesOnTopOfTheListAndIsTitledWithTheDialogsName) {
    writeFile(folder_.file("a b.z80"), " nop");
    preferences_.recentFiles = {folder_.file("a b.z80"), "", "", ""};
    start(folder_.file("a b.z80"));
    ASSERT_EQ(documents().size(), 1);
    EXPECT_EQ(active().caption(), "Doc 1\t");
    EXPECT_EQ(active().txt().bytes(), " nop");
    EXPECT_FALSE(active().isModified());
    EXPECT_EQ(compiler().menuItem("fil", 1)->text().toStdString(), folder_.file("a b.z80"));
    EXPECT_EQ(compiler().menuItem("fil", 2)->text().toStdString(), folder_.file("a b.z80"));
    EXPECT_TRUE(compiler().menuItem("s_hamnibar")->isVisible());
}

TEST_F(StartUp, TheFirstRunMakesTheProjectsFolderAndPresetsTheDialog) {
    std::filesystem::remove(folder_.file("Projects"));
    writeFile(folder_.file("prefs.ini"), firstRunPreferences());
    writeFile(folder_.file("a.z80"), "");
    startWithFile(folder_.file("a.z80"));
    EXPECT_TRUE(std::filesystem::is_directory(folder_.file("Projects")));
    EXPECT_EQ(compiler().cd().fileName, folder_.file("Projects/yourfile"));
    EXPECT_EQ(active().caption(), "Doc 1\t" + folder_.file("Projects/yourfile"));
}

TEST_F(StartUp, AFirstRunIsRefusedWhereTheProjectsFolderExists) {
    writeFile(folder_.file("prefs.ini"), firstRunPreferences());
    EXPECT_THROW(startWithFile(), Failure);
    EXPECT_EQ(readFile(folder_.file("prefs.ini")), firstRunPreferences());
}

TEST_F(StartUp, IsRefusedWithoutAPreferencesFile) {
    try {
        startWithFile();
        FAIL() << "started without preferences";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 53);
        EXPECT_NE(failure.description().find(folder_.file("prefs.ini")), std::string::npos);
    }
}

TEST_F(StartUp, IsRefusedWithAShortPreferencesFile) {
    writeFile(folder_.file("prefs.ini"), "one line\r\n");
    try {
        startWithFile();
        FAIL() << "started with one line";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 62);
    }
    EXPECT_EQ(readFile(folder_.file("prefs.ini")), "one line\r\n");
}

TEST_F(StartUp, IsRefusedWhenTheCommandLinesFileCannotBeOpened) {
    EXPECT_THROW(start(folder_.file("none.z80")), Failure);
}

TEST_F(StartUp, OnNewYearsDayGreetsTheActiveDocumentAtEveryStart) {
    preferences_.easterEggs = true;
    writeFile(folder_.file("a.z80"), " ret");
    preferences_.recentFiles = {folder_.file("a.z80"), "", "", ""};
    desktop_.clock.time = {2006, 1, 1, 9, 0, 0};
    start();
    EXPECT_EQ(active().txt().bytes(), ";Happy New Year!!! ret");
    start();
    EXPECT_EQ(active().txt().bytes(), ";Happy New Year!!! ret");
}

TEST_F(StartUp, DateNoticesNeedTheirSwitch) {
    desktop_.clock.time = {2005, 1, 21, 9, 0, 0};
    start();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    preferences_.easterEggs = true;
    desktop_.boxes.answers = {BoxAnswer::Ok};
    start();
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    EXPECT_EQ(desktop_.boxes.shownBoxes[0].title, "KAV COMPILER IS OOOOOOOOOOOLLLLLLLLLLLLLDDDDDD!!!");
    EXPECT_EQ(desktop_.boxes.shownBoxes[0].icon, BoxIcon::Exclamation);
}

TEST_F(StartUp, CustomToolsAreShownByNameAndHiddenWithoutOne) {
    preferences_.customTools[1] = {"Salt & Pepper", "pepper"};
    start();
    EXPECT_FALSE(compiler().menuItem("set1", 0)->isVisible());
    EXPECT_TRUE(compiler().menuItem("set1", 1)->isVisible());
    EXPECT_EQ(compiler().menuItem("set1", 1)->text(), "Salt && Pepper");
}

TEST_F(StartUp, DocumentsOpenWithTheFontOfThePreferences) {
    preferences_.fontSize = 20;
    start();
    EXPECT_EQ(
        active().txt().SendScintilla(QsciScintillaBase::SCI_STYLEGETSIZE, QsciScintillaBase::STYLE_DEFAULT),
        20);
}

}  // namespace kav::test

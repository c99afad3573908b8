// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <filesystem>
#include <functional>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

namespace kav::test {

using StartUp = MainWindow;

/// A first start: no projects folder yet, and a user who answers the registration dialog.
class FirstRun : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        std::filesystem::remove(folder_.file("Projects"));
        writeFile(folder_.file("prefs.ini"), firstRunPreferences());
    }

    /// Starts the program; `answer` sees the dialog that start-up waits for.
    void startAndAnswer(const std::function<void(QDialog&)>& answer, const std::string& commandLine = {}) {
        QTimer firstTurn;
        firstTurn.setSingleShot(true);
        QObject::connect(&firstTurn, &QTimer::timeout, [this, &answer] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            dialogName_ = dialog->objectName().toStdString();
            answer(*dialog);
            dialog->reject();  // has no effect on one that Ok has closed
        });
        firstTurn.start(0);
        startWithFile(commandLine);
    }

    static void press(QDialog& dialog, const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }

    std::string dialogName_;  ///< of the dialog that was met; empty when there was none
};

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

TEST_F(FirstRun, MakesTheProjectsFolderAndPresetsTheDialog) {
    writeFile(folder_.file("a.z80"), "");
    startAndAnswer([](QDialog& dialog) { press(dialog, "Command2"); }, folder_.file("a.z80"));
    EXPECT_TRUE(std::filesystem::is_directory(folder_.file("Projects")));
    EXPECT_EQ(compiler().cd().fileName, folder_.file("Projects/yourfile"));
    EXPECT_EQ(active().caption(), "Doc 1\t" + folder_.file("Projects/yourfile"));
}

TEST_F(FirstRun, AsksAfterFileTypesBeforeAnyDocumentOpens) {
    startAndAnswer([this](QDialog& dialog) {
        auto* owner = qobject_cast<Compiler*>(dialog.parentWidget());
        ASSERT_NE(owner, nullptr);
        EXPECT_TRUE(owner->isVisible());
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(owner->values().openDocuments, 0);
        EXPECT_EQ(owner->cd().fileName, folder_.file("Projects/yourfile"));
        dialog.findChild<QCheckBox*>("kvf")->setChecked(true);
        press(dialog, "Command1");
    });
    EXPECT_EQ(dialogName_, "reg");
    EXPECT_EQ(desktop_.registry.defaultValue(".kvf"), "Z80AsmSrc");
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
}

TEST_F(FirstRun, RegistersNothingWhenTheDialogIsCancelled) {
    startAndAnswer([](QDialog& dialog) { press(dialog, "Command2"); });
    EXPECT_EQ(dialogName_, "reg");
    EXPECT_TRUE(desktop_.registry.keys.empty());
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
}

TEST_F(FirstRun, AloneShowsTheDialog) {
    startAndAnswer([](QDialog&) {});
    ASSERT_EQ(dialogName_, "reg");
    EXPECT_TRUE(compiler().close());
    dialogName_.clear();
    startAndAnswer([](QDialog&) {});
    EXPECT_EQ(dialogName_, "");
}

TEST_F(FirstRun, IsRefusedWhereTheProjectsFolderExists) {
    makeFolder(folder_.file("Projects"));
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

TEST_F(StartUp, CompilesTheFileOnceTheWindowIsUpWhenAskedTo) {
    writeFile(folder_.file("a.z80"), " ret");
    start(folder_.file("a.z80")).compileOnceUp();
    EXPECT_TRUE(desktop_.boxes.askedBoxes.empty());
    desktop_.boxes.typed = {"prog"};
    QCoreApplication::processEvents();
    ASSERT_EQ(desktop_.boxes.askedBoxes.size(), 1U);
    EXPECT_EQ(desktop_.boxes.askedBoxes[0].title, "Compile Program");
    EXPECT_TRUE(readFile(folder_.file("prog.z80")).ends_with(" ret\r\n"));
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

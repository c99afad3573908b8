// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/quick_list_window.h"
#include "documents/recovery_schedule.h"
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <QListWidget>

namespace kav::test {

class Recovery : public MainWindow {
  protected:
    using Copies = std::map<std::string, std::string>;

    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    /// Opens the file of the application folder as a document.
    void open(const std::string& name, const std::string& text = {}) {
        writeFile(folder_.file(name), text);
        desktop_.fileChooser.answers = {folder_.file(name)};
        choose("load");
    }
    void type(const char* text) { QTest::keyClicks(active().txt().viewport(), text); }
    QTimer& timer() { return *active().recovery().findChild<QTimer*>("recovery"); }

    /// The pause after the last key, cut short, and what is written in it.
    void pause() {
        timer().start(0);
        while (timer().isActive())
            QCoreApplication::processEvents();
        settle();
    }
    void settle() {
        compiler().recoveryWriter().finish();
        QCoreApplication::processEvents();
    }

    /// The files of the projects folder, and what they hold.
    [[nodiscard]] Copies copies() const {
        Copies found;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.file("Projects")))
            found[entry.path().filename().string()] = readFile(entry.path().string());
        return found;
    }
    /// The name of the active document's first copy when it was read from the application folder.
    [[nodiscard]] std::string copyName(const std::string& stem) const {
        return stem + " in " + folder_.path().filename().string() + " (unsaved).z80";
    }
    [[nodiscard]] std::string report() const { return desktop_.boxes.shownBoxes.back().text; }
};

TEST_F(Recovery, ADocumentThatIsNotChangedHasNoCopyAndNoTimer) {
    open("a.z80", " ret");
    choose("newasm");
    EXPECT_FALSE(timer().isActive());
    compiler().keepCopies();
    EXPECT_EQ(copies(), Copies());
}

TEST_F(Recovery, WritesACopyWhenTheKeysRest) {
    type("one");
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(timer().isSingleShot());
    EXPECT_EQ(timer().intervalAsDuration(), kTypingPause);
    EXPECT_EQ(copies(), Copies());
    pause();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "one"}}));
    EXPECT_FALSE(timer().isActive());
    type(" two");
    pause();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "one two"}}));
    EXPECT_TRUE(active().isModified());
}

TEST_F(Recovery, KeepsEveryByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    active().txt().setBytes(all);
    pause();
    EXPECT_EQ(copies().begin()->second, all);
}

TEST_F(Recovery, SavingRemovesTheCopy) {
    open("a.z80");
    type("x");
    pause();
    ASSERT_EQ(copies(), (Copies{{copyName("a"), "x"}}));
    choose("svenotas");
    settle();
    EXPECT_EQ(copies(), Copies());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(Recovery, SavingUnderANewNameRemovesTheOldNamesCopy) {
    type("x");
    pause();
    desktop_.fileChooser.answers = {folder_.file("b.z80")};
    choose("sve");
    settle();
    EXPECT_EQ(copies(), Copies());
    type("y");
    pause();
    EXPECT_EQ(copies(), (Copies{{copyName("b"), "xy"}}));
}

TEST_F(Recovery, SavingToTheProjectsFolderRemovesTheCopy) {
    type("x");
    pause();
    desktop_.boxes.typed = {"game"};
    choose("stpf");
    settle();
    EXPECT_EQ(copies(), (Copies{{"game.kvf", "x\r\n"}}));
}

TEST_F(Recovery, ACancelledSaveKeepsTheCopyThoughTheMarkerIsCleared) {
    type("x");
    pause();
    desktop_.boxes.typed = {""};
    choose("stpf");
    settle();
    EXPECT_FALSE(active().isModified());
    active().close();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "x"}}));
}

TEST_F(Recovery, NoAtClosingRemovesTheCopy) {
    type("x");
    pause();
    desktop_.boxes.answers = {BoxAnswer::No};
    active().close();
    settle();
    EXPECT_EQ(documents().size(), 0);
    EXPECT_EQ(copies(), Copies());
}

TEST_F(Recovery, CancelAtClosingKeepsTheCopy) {
    type("x");
    pause();
    desktop_.boxes.answers = {BoxAnswer::Cancel};
    active().close();
    settle();
    EXPECT_EQ(copies().size(), 1U);
}

TEST_F(Recovery, ADocumentThatClosesUnsavedInSpiteOfYesLeavesItsCopy) {
    type("x");
    desktop_.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Ignore};
    desktop_.fileChooser.answers = {std::nullopt};
    active().close();
    EXPECT_EQ(documents().size(), 0);
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "x"}}));
}

TEST_F(Recovery, EachDocumentHasItsOwnCopy) {
    makeFolder(folder_.file("x"));
    open("a.z80");
    type("1");
    pause();
    open("x/a.z80");
    type("2");
    pause();
    choose("newasm");
    active().txt().setBytes("3");
    pause();
    EXPECT_EQ(
        copies(),
        (Copies{{copyName("a"), "1"}, {"a in x (unsaved).z80", "2"}, {"Untitled 4 (unsaved).kvf", "3"}}));
}

TEST_F(Recovery, ADocumentOfTwoDigitsIsNamedLikeAnyOther) {
    compiler().values().documentCounter = 11;
    open("a.z80");
    type("x");
    pause();
    EXPECT_TRUE(copies().contains(copyName("a")));
}

TEST_F(Recovery, ACommandLinesFileNamesTheCopy) {
    writeFile(folder_.file("c.z80"), "");
    start(folder_.file("c.z80"));
    EXPECT_EQ(active().caption(), "Doc 1\t");
    type("x");
    pause();
    EXPECT_EQ(copies(), (Copies{{copyName("c"), "x"}}));
}

TEST_F(Recovery, TheCopyOfACrashedRunStaysBesideTheNewOne) {
    writeFile(folder_.file("Projects/Untitled 1 (unsaved).kvf"), "crashed");
    type("x");
    pause();
    EXPECT_EQ(copies().at("Untitled 1 (unsaved 2).kvf"), "x");
    desktop_.boxes.answers = {BoxAnswer::No};
    active().close();
    settle();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "crashed"}}));
}

TEST_F(Recovery, ACopyOpensFromTheQuickListWithADoubleClick) {
    type("what was typed");
    pause();
    start();
    choose("vew_list");
    auto& list = *compiler().quickList().findChild<QListWidget*>("files");
    ASSERT_EQ(list.count(), 1);
    const QPoint place = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(active().txt().bytes(), "what was typed");
    EXPECT_EQ(active().caption(), "Doc 2\t" + folder_.file("Projects/Untitled 1 (unsaved).kvf"));
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(copies(), Copies());
}

TEST_F(Recovery, SavingAnOpenedCopyInItsPlaceIsNotUndoneByItsFormerDocument) {
    type("x");
    pause();
    Doc* typedInto = &active();
    choose("vew_list");
    choose("openquik");
    active().txt().setBytes("made better");
    choose("svenotas");
    typedInto->takeFocus();
    type("y");
    pause();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "made better\r\n"},
                                {"Untitled 1 (unsaved 2).kvf", "xy"}}));
}

TEST_F(Recovery, AListThatIsShownLosesTheCopyThatTheProgramRemoves) {
    writeFile(folder_.file("Projects/.kav-0123456789abcdef.new"), "a save under way");
    type("x");
    pause();
    choose("vew_list");
    auto& list = *compiler().quickList().findChild<QListWidget*>("files");
    ASSERT_EQ(list.count(), 1);
    desktop_.fileChooser.answers = {folder_.file("b.z80")};
    choose("sve");
    settle();
    EXPECT_EQ(list.count(), 0);
}

TEST_F(Recovery, AFailureIsReportedOnceAndNotAtEachPause) {
    std::filesystem::remove(folder_.file("Projects"));
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    type("x");
    pause();
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    EXPECT_NE(report().find("Error 76in module recovery_Timer: Path not found"), std::string::npos);
    type("y");
    pause();
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    makeFolder(folder_.file("Projects"));
    // The copy that failed is still owed, with no further key.
    compiler().keepCopies();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "xy"}}));
}

TEST_F(Recovery, AFailureWaitsUntilTheKeysRest) {
    std::filesystem::remove(folder_.file("Projects"));
    type("x");
    compiler().keepCopies();
    type("y");
    settle();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    pause();
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
}

TEST_F(Recovery, ACopyThatCannotBeLeftBehindIsReportedAtClosing) {
    std::filesystem::remove(folder_.file("Projects"));
    type("x");
    desktop_.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Ignore, BoxAnswer::Ignore};
    desktop_.fileChooser.answers = {std::nullopt};
    active().close();
    EXPECT_NE(report().find("Error 76in module recovery_Timer: "), std::string::npos);
    EXPECT_EQ(documents().size(), 0);
}

TEST_F(Recovery, AbortInTheReporterKeepsWhatWasTyped) {
    type("x");
    desktop_.boxes.answers = {BoxAnswer::Abort};
    compiler().doerr("load_Click", 53, "File not found");
    EXPECT_TRUE(desktop_.environment.endedAtOnce.has_value());
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "x"}}));
}

TEST_F(Recovery, AnEndThatTheSystemAsksForAsksNobody) {
    type("x");
    choose("newasm");
    active().txt().setBytes("y");
    compiler().settop("/tmp/a.z80");
    compiler().endUnasked();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    EXPECT_EQ(desktop_.environment.ended, 0);
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "x"}, {"Untitled 2 (unsaved).kvf", "y"}}));
    EXPECT_EQ(parsePreferences(readFile(folder_.file("prefs.ini"))).recentFiles[0], "/tmp/a.z80");
}

TEST_F(Recovery, AnEndWithoutAnyOtherWordKeepsWhatWasTyped) {
    type("x");
    start();
    EXPECT_EQ(copies(), (Copies{{"Untitled 1 (unsaved).kvf", "x"}}));
}

}  // namespace kav::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

namespace kav::test {

class Closing : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    void type(const char* text) { QTest::keyClicks(active().txt().viewport(), text); }
};

TEST_F(Closing, AnUnchangedDocumentAsksNothing) {
    active().close();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
    EXPECT_EQ(compiler().values().openDocuments, 0);
    EXPECT_EQ(documents().size(), 0);
}

TEST_F(Closing, AModifiedDocumentAsksWithItsName) {
    active().txt().setBytes("x");
    desktop_.boxes.answers = {BoxAnswer::No};
    active().close();
    const MessageBox& box = desktop_.boxes.shownBoxes.at(0);
    EXPECT_EQ(box.text, "Untitled has been modified since it was last saved. Do you want to save it?");
    EXPECT_EQ(box.title, "Save changes? - KAV Compiler");
    EXPECT_EQ(box.icon, BoxIcon::Question);
    EXPECT_EQ(box.buttons, BoxButtons::YesNoCancel);
    EXPECT_EQ(compiler().values().openDocuments, 0);
}

TEST_F(Closing, ADocumentOfTwoDigitsKeepsTheSurplusDigitsInItsQuestion) {
    active().setCaption("Doc 12\tUntitled");
    active().txt().setBytes("x");
    desktop_.boxes.answers = {BoxAnswer::No};
    active().close();
    EXPECT_TRUE(desktop_.boxes.shownBoxes.at(0).text.starts_with("\tUntitled has been"));
}

TEST_F(Closing, CancelKeepsTheDocumentAndTheCount) {
    active().txt().setBytes("x");
    desktop_.boxes.answers = {BoxAnswer::Cancel};
    active().close();
    EXPECT_EQ(documents().size(), 1);
    EXPECT_EQ(compiler().values().openDocuments, 1);
}

TEST_F(Closing, YesSavesTheDocumentThatIsClosed) {
    compiler().values().nextDocumentTitle = folder_.file("a.z80");
    compiler().newfile("old");
    Doc* document = &active();
    document->txt().setBytes("new");
    choose("newasm");
    ASSERT_NE(&active(), document);
    desktop_.boxes.answers = {BoxAnswer::Yes};
    document->close();
    EXPECT_EQ(readFile(folder_.file("a.z80")), "new\r\n");
}

TEST_F(Closing, ACancelledSaveAsStillLetsTheDocumentClose) {
    active().txt().setBytes("x");
    desktop_.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Ignore};
    desktop_.fileChooser.answers = {std::nullopt};
    active().close();
    EXPECT_EQ(documents().size(), 0);
}

TEST_F(Closing, TheMainWindowClosesItsDocumentsFirstEachWithItsQuestion) {
    active().txt().setBytes("x");
    choose("newasm");
    active().txt().setBytes("y");
    desktop_.boxes.answers = {BoxAnswer::No, BoxAnswer::No};
    choose("bye");
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 2U);
    EXPECT_EQ(desktop_.environment.ended, 0);
}

TEST_F(Closing, CancelKeepsThatDocumentAndTheProgramOpen) {
    choose("newasm");
    active().txt().setBytes("y");
    writeFile(folder_.file("prefs.ini"), "untouched");
    desktop_.boxes.answers = {BoxAnswer::Cancel};
    choose("bye");
    EXPECT_EQ(documents().size(), 1);
    EXPECT_TRUE(compiler().isVisible());
    EXPECT_FALSE(desktop_.environment.ended.has_value());
    EXPECT_EQ(readFile(folder_.file("prefs.ini")), "untouched");
}

TEST_F(Closing, PreferencesThatCannotBeWrittenAreAFailureThatNobodyCatches) {
    removeFile(folder_.file("prefs.ini"));
    makeFolder(folder_.file("prefs.ini"));
    EXPECT_THROW(compiler().close(), Failure);
    EXPECT_FALSE(desktop_.environment.ended.has_value());
}

TEST_F(Closing, TheMainWindowWritesThePreferencesAtItsEnd) {
    compiler().settop("/tmp/a.z80");
    compiler().values().usageSeconds = 77;
    writeFile(folder_.file("prefs.ini"), "whatever a dialog wrote meanwhile");
    compiler().close();
    const Preferences written = parsePreferences(readFile(folder_.file("prefs.ini")));
    EXPECT_EQ(written.recentFiles[0], "/tmp/a.z80");
    EXPECT_EQ(written.usageSeconds, 77);
    EXPECT_EQ(written.fontName, "DejaVu Sans Mono");
    EXPECT_FALSE(written.firstRun);
}

}  // namespace kav::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main_window_fixture.h"

#include <filesystem>

namespace kav::test {

class OpenSave : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }
};

TEST_F(OpenSave, OpenShowsTheFileAndListsItOnTop) {
    writeFile(folder_.file("a.z80"), " ret\n");
    desktop_.fileChooser.answers = {folder_.file("a.z80")};
    choose("load");
    const FileQuestion& question = desktop_.fileChooser.questions.at(0);
    EXPECT_EQ(question.title, "Load File");
    EXPECT_TRUE(question.filter.starts_with("All Supported Files(*.kvf,"));
    EXPECT_EQ(question.initialFolder, folder_.file("Projects"));
    EXPECT_EQ(active().caption(), "Doc 2\t" + folder_.file("a.z80"));
    EXPECT_FALSE(active().isModified());
    EXPECT_EQ(compiler().menuItem("fil", 1)->text().toStdString(), folder_.file("a.z80"));
}

TEST_F(OpenSave, CancelInOpenGoesToTheReporter) {
    desktop_.fileChooser.answers = {std::nullopt};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("load");
    EXPECT_NE(
        desktop_.boxes.shownBoxes.at(0).text.find("Error 32755in module load_Click: Cancel was selected.."),
        std::string::npos);
    EXPECT_EQ(documents().size(), 1);
}

TEST_F(OpenSave, AFileThatCannotBeReadOpensNoDocument) {
    desktop_.fileChooser.answers = {folder_.file("none.z80")};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("load");
    EXPECT_EQ(documents().size(), 1);
    EXPECT_FALSE(compiler().menuItem("fil", 1)->isVisible());
}

TEST_F(OpenSave, ARoundTripAddsOneLineBreakAndChangesNoOtherByte) {
    std::string all = "mixed\nline\rends\r\n";
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    writeFile(folder_.file("a.z80"), all);
    desktop_.fileChooser.answers = {folder_.file("a.z80")};
    choose("load");
    choose("svenotas");
    EXPECT_EQ(readFile(folder_.file("a.z80")), all + "\r\n");
}

TEST_F(OpenSave, SaveMarksTheDocumentUnmodifiedAndLeavesTheRecentFiles) {
    compiler().values().nextDocumentTitle = folder_.file("b.z80");
    compiler().newfile("old");
    active().txt().setBytes("new");
    choose("svenotas");
    EXPECT_EQ(readFile(folder_.file("b.z80")), "new\r\n");
    EXPECT_FALSE(active().isModified());
    EXPECT_FALSE(compiler().menuItem("fil", 1)->isVisible());
}

TEST_F(OpenSave, SaveOnAnUntitledDocumentIsSaveAs) {
    active().txt().setBytes("text");
    desktop_.fileChooser.answers = {folder_.file("c.kvf")};
    choose("svenotas");
    const FileQuestion& question = desktop_.fileChooser.questions.at(0);
    EXPECT_EQ(question.title, "Save Untitled");
    EXPECT_TRUE(question.filter.starts_with("KAV Compiler File(*.kvf)|*.kvf|"));
    EXPECT_EQ(readFile(folder_.file("c.kvf")), "text\r\n");
    EXPECT_EQ(active().caption(), "Doc 1\t" + folder_.file("c.kvf"));
    EXPECT_EQ(compiler().menuItem("fil", 1)->text().toStdString(), folder_.file("c.kvf"));
}

TEST_F(OpenSave, CancelInSaveAsGoesToTheReporter) {
    desktop_.fileChooser.answers = {std::nullopt};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("sve");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("in module sve_Click: "), std::string::npos);
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
}

TEST_F(OpenSave, SaveToProjectsReplacesWithoutAskingAndKeepsTheCaption) {
    writeFile(folder_.file("Projects/game.kvf"), "old");
    active().txt().setBytes("new");
    desktop_.boxes.typed = {"game"};
    choose("stpf");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(0).prompt, "Enter name for this file in the projects folder");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(0).title, "Save to projects folder - KAV Compiler");
    EXPECT_EQ(readFile(folder_.file("Projects/game.kvf")), "new\r\n");
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
    EXPECT_EQ(compiler().menuItem("fil", 1)->text().toStdString(), folder_.file("Projects/game.kvf"));
}

TEST_F(OpenSave, SaveToProjectsClearsTheMarkerEvenWhenCancelled) {
    active().txt().setBytes("x");
    desktop_.boxes.typed = {""};
    choose("stpf");
    EXPECT_FALSE(active().isModified());
}

TEST_F(OpenSave, AFailedSaveIsReportedAndTheDocumentStaysModified) {
    compiler().values().nextDocumentTitle = folder_.file("none/b.z80");
    compiler().newfile("text");
    active().txt().setBytes("changed");
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("svenotas");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 76in module svenota: "), std::string::npos);
    EXPECT_TRUE(active().isModified());
}

TEST_F(OpenSave, WithoutADocumentSavingDoesNothing) {
    active().close();
    ASSERT_EQ(documents().size(), 0);
    choose("svenotas");
    choose("sve");
    choose("stpf");
    EXPECT_TRUE(desktop_.fileChooser.questions.empty());
    EXPECT_TRUE(desktop_.boxes.askedBoxes.empty());
}

}  // namespace kav::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/linux/failing_disk.h"

#include "runtime/failure.h"
#include "support/failure_number.h"
#include "windows/main_window_fixture.h"

#include <filesystem>

namespace kav::test {

namespace fs = std::filesystem;

/// A document with a long text that is in no file, over a disk that fails.
class FailingDisk : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
        makeFolder(folder_.file("disk"));
        writeFile(path(), "old");
        desktop_.fileChooser.answers = {path()};
        choose("load");
        active().txt().setBytes(text_);
    }

    [[nodiscard]] std::string path() const { return folder_.file("disk/a.z80"); }

    /// Saves, which fails with that number: reported once, with nothing lost.
    void expectSaveFails(int number) {
        desktop_.boxes.answers = {BoxAnswer::Ignore};
        choose("svenotas");
        ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
        expectReport("svenota", number);
        expectNothingLost();
    }

    void expectReport(const std::string& handler, int number) {
        const std::string expected = "Error " + std::to_string(number) + "in module " + handler + ": ";
        const std::string& report = desktop_.boxes.shownBoxes.back().text;
        EXPECT_NE(report.find(expected), std::string::npos) << report;
    }

    /// The text stays, counts as modified, and closing asks for it.
    void expectNothingLost() {
        EXPECT_EQ(active().txt().bytes(), text_);
        EXPECT_TRUE(active().isModified());
        desktop_.boxes.answers = {BoxAnswer::Cancel};
        active().close();
        EXPECT_EQ(desktop_.boxes.shownBoxes.back().title, "Save changes? - KAV Compiler");
    }

    /// The old content is whole, and nothing lies beside it.
    void expectOldFile() {
        EXPECT_EQ(readFile(path()), "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(folder_.file("disk")), {}), 1);
    }

    /// The pause in typing, and the copy that is written in it.
    void writeCopy() {
        compiler().keepCopies();
        QCoreApplication::processEvents();
    }

    const std::string text_ = std::string(100000, 'x');
};

TEST_F(FailingDisk, AFullOneFailsASaveAndKeepsTheOldFile) {
    {
        const FullDisk full(4096);
        expectSaveFails(61);
    }
    expectOldFile();
    choose("svenotas");
    EXPECT_EQ(readFile(path()), text_ + "\r\n");
}

TEST_F(FailingDisk, AFullOneFailsSaveAs) {
    fs::create_symlink("/dev/full", folder_.file("full.z80"));
    desktop_.fileChooser.answers = {folder_.file("full.z80")};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    choose("sve");
    expectReport("sve_Click", 61);
    EXPECT_EQ(active().caption(), "Doc 2\t" + path());
    expectNothingLost();
}

TEST_F(FailingDisk, AFullOneFailsSavingToTheProjectsFolder) {
    desktop_.boxes.typed = {"game"};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    {
        const FullDisk full(4096);
        choose("stpf");
        expectReport("stpf_Click", 61);
        expectNothingLost();
    }
    EXPECT_TRUE(fs::is_empty(folder_.file("Projects")));
}

TEST_F(FailingDisk, AFullOneFailsACopyAndKeepsTheFormerOne) {
    writeCopy();
    const fs::path copy = fs::directory_iterator(folder_.file("Projects"))->path();
    ASSERT_EQ(readFile(copy.string()), text_);
    active().txt().setSelStart(0);
    active().txt().replaceSelection("more");
    const FullDisk full(4096);
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    writeCopy();
    expectReport("recovery_Timer", 61);
    EXPECT_EQ(readFile(copy.string()), text_);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.file("Projects")), {}), 1);
    EXPECT_TRUE(active().isModified());
}

TEST_F(FailingDisk, AFullOneFailsThePreferencesAtTheEndAndKeepsTheOldOnes) {
    const std::string before = readFile(folder_.file("prefs.ini"));
    desktop_.boxes.answers = {BoxAnswer::No};
    const FullDisk full(16);
    EXPECT_EQ(failureNumberOf([&] { compiler().close(); }), 61);
    EXPECT_FALSE(desktop_.environment.ended.has_value());
    EXPECT_EQ(readFile(folder_.file("prefs.ini")), before);
}

TEST_F(FailingDisk, OneThatIsFullForOneCopyTakesTheOthers) {
    choose("newasm");
    active().txt().setBytes("short");
    const FullDisk full(4096);
    compiler().keepCopies();
    EXPECT_EQ(readFile(folder_.file("Projects/Untitled 3 (unsaved).kvf")), "short");
}

TEST_F(FailingDisk, AReadOnlyFolderFailsASave) {
    {
        const ReadOnlyFolder readOnly(folder_.file("disk"));
        if (!readOnly.holds()) GTEST_SKIP() << "the rights of this user cannot be put down";
        expectSaveFails(70);
    }
    expectOldFile();
}

TEST_F(FailingDisk, AReadOnlyProjectsFolderFailsACopy) {
    const ReadOnlyFolder readOnly(folder_.file("Projects"));
    if (!readOnly.holds()) GTEST_SKIP() << "the rights of this user cannot be put down";
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    writeCopy();
    expectReport("recovery_Timer", 70);
    expectNothingLost();
}

TEST_F(FailingDisk, AReadOnlyApplicationFolderFailsThePreferencesAtTheEnd) {
    const ReadOnlyFolder readOnly(folder_.path());
    if (!readOnly.holds()) GTEST_SKIP() << "the rights of this user cannot be put down";
    desktop_.boxes.answers = {BoxAnswer::No};
    EXPECT_EQ(failureNumberOf([&] { compiler().close(); }), 70);
}

TEST_F(FailingDisk, AFolderThatVanishesFailsASave) {
    fs::remove_all(folder_.file("disk"));
    expectSaveFails(76);
    // What had the folder's name is a file now.
    writeFile(folder_.file("disk"), "");
    desktop_.boxes.shownBoxes.clear();
    expectSaveFails(76);
}

TEST_F(FailingDisk, AProjectsFolderThatVanishesFailsACopy) {
    fs::remove_all(folder_.file("Projects"));
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    writeCopy();
    expectReport("recovery_Timer", 76);
    expectNothingLost();
}

TEST_F(FailingDisk, AnApplicationFolderThatVanishesFailsThePreferencesAtTheEnd) {
    fs::remove_all(folder_.path());
    desktop_.boxes.answers = {BoxAnswer::No};
    EXPECT_EQ(failureNumberOf([&] { compiler().close(); }), 76);
}

}  // namespace kav::test

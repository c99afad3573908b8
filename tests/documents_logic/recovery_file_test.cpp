// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/recovery_file.h"

#include "runtime/files.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kav {

using test::failureNumberOf;

class RecoveryFileTest : public testing::Test {
  protected:
    void SetUp() override { makeFolder(application_.project()); }

    RecoveryFile copyOf(const std::string& documentName) { return {application_, 1, documentName}; }
    std::string inProjects(const std::string& name) { return application_.project(name); }
    [[nodiscard]] std::ptrdiff_t countOfFiles() const {
        return std::distance(std::filesystem::directory_iterator(application_.project()), {});
    }

    test::TemporaryFolder folder_;
    ApplicationFolder application_{folder_.path().string()};
};

TEST_F(RecoveryFileTest, WritesOneFileAndRemovesIt) {
    RecoveryFile copy = copyOf("/a/game.z80");
    copy.write("first");
    copy.write("second, and longer");
    EXPECT_EQ(copy.path(), inProjects("game in a (unsaved).z80"));
    EXPECT_EQ(readFile(copy.path()), "second, and longer");
    EXPECT_EQ(countOfFiles(), 1);
    EXPECT_EQ(copy.remove(), inProjects("game in a (unsaved).z80"));
    EXPECT_EQ(countOfFiles(), 0);
    EXPECT_EQ(copy.remove(), "");
}

TEST_F(RecoveryFileTest, LeavesTheCopyOfAnEarlierRunOrOfAnotherProgram) {
    writeFile(inProjects("game in a (unsaved).z80"), "after the crash");
    RecoveryFile copy = copyOf("/a/game.z80");
    RecoveryFile others = copyOf("/a/game.z80");
    copy.write("mine");
    others.write("another's");
    EXPECT_EQ(copy.path(), inProjects("game in a (unsaved 2).z80"));
    EXPECT_EQ(others.path(), inProjects("game in a (unsaved 3).z80"));
    copy.remove();
    EXPECT_EQ(readFile(inProjects("game in a (unsaved).z80")), "after the crash");
    EXPECT_EQ(readFile(others.path()), "another's");
}

TEST_F(RecoveryFileTest, NeverOverwritesWhatWasSavedInItsPlace) {
    RecoveryFile copy = copyOf("/a/game.z80");
    copy.write("copy");
    const std::string path = copy.path();
    writeFile(path, "opened from the list, changed and saved");
    copy.write("newer copy");
    EXPECT_EQ(readFile(path), "opened from the list, changed and saved");
    EXPECT_EQ(readFile(copy.path()), "newer copy");
    writeFile(copy.path(), "saved once more");
    EXPECT_EQ(copy.remove(), "");
    EXPECT_EQ(countOfFiles(), 2);
}

TEST_F(RecoveryFileTest, ComesBackWhenItWasDeletedByHand) {
    RecoveryFile copy = copyOf("/a/game.z80");
    copy.write("copy");
    removeFile(copy.path());
    copy.write("newer copy");
    EXPECT_EQ(readFile(inProjects("game in a (unsaved).z80")), "newer copy");
    removeFile(copy.path());
    EXPECT_EQ(copy.remove(), "");
}

TEST_F(RecoveryFileTest, FailsWithoutTheProjectsFolderAndWritesOnceItIsThere) {
    std::filesystem::remove(application_.project());
    RecoveryFile copy = copyOf("Untitled");
    EXPECT_EQ(failureNumberOf([&] { copy.write("text"); }), 76);
    EXPECT_FALSE(copy.isWritten());
    // The folder is made by the first run alone, which expects to find none.
    EXPECT_FALSE(fileExists(application_.project()));
    makeFolder(application_.project());
    copy.write("text");
    EXPECT_TRUE(copy.isWritten());
    EXPECT_EQ(readFile(inProjects("Untitled 1 (unsaved).kvf")), "text");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/files.h"

#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace kav {

using test::failureNumberOf;

namespace fs = std::filesystem;

namespace {

class Files : public testing::Test {
  protected:
    test::TemporaryFolder folder_;
};

}  // namespace

TEST_F(Files, KeepEveryByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    writeFile(folder_.file("a"), all);
    EXPECT_EQ(readFile(folder_.file("a")), all);
}

TEST_F(Files, AreReplacedWhole) {
    writeFile(folder_.file("a"), "a longer text");
    writeFile(folder_.file("a"), "short");
    EXPECT_EQ(readFile(folder_.file("a")), "short");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()), 1);
}

TEST_F(Files, MayHaveNamesInAnyScript) {
    const std::string path = bytesOf(folder_.path() / pathOf("\xC3\xA9\xE2\x82\xAC.z80"));
    writeFile(path, "text");
    EXPECT_EQ(readFile(path), "text");
    EXPECT_EQ(bytesOf(fs::directory_iterator(folder_.path())->path()), path);
}

TEST_F(Files, ReplacingKeepsPermissions) {
    writeFile(folder_.file("a"), "old");
    fs::permissions(folder_.file("a"), fs::perms::owner_read | fs::perms::owner_write);
    const fs::perms before = fs::status(folder_.file("a")).permissions();
    writeFile(folder_.file("a"), "new");
    EXPECT_EQ(fs::status(folder_.file("a")).permissions(), before);
}

TEST_F(Files, ReplacingFollowsLinks) {
    writeFile(folder_.file("real"), "old");
    std::error_code error;
    fs::create_symlink("real", folder_.file("link"), error);
    if (error == std::errc::function_not_supported) GTEST_SKIP() << "no symbolic links can be made here";
    writeFile(folder_.file("link"), "new");
    EXPECT_TRUE(fs::is_symlink(folder_.file("link")));
    EXPECT_EQ(readFile(folder_.file("real")), "new");
}

TEST_F(Files, GrowAtTheEndWhenAppendedTo) {
    appendToFile(folder_.file("log"), "1");
    appendToFile(folder_.file("log"), "2");
    EXPECT_EQ(readFile(folder_.file("log")), "12");
}

TEST_F(Files, FailuresHaveTheRuntimesNumbers) {
    EXPECT_EQ(failureNumberOf([&] { (void)readFile(folder_.file("none")); }), 53);
    EXPECT_EQ(failureNumberOf([&] { (void)readFile(folder_.file("none/none")); }), 76);
    EXPECT_EQ(failureNumberOf([&] { (void)readFile(folder_.path().string()); }), 75);
    EXPECT_EQ(failureNumberOf([&] { writeFile(folder_.file("none/none"), ""); }), 76);
    EXPECT_EQ(failureNumberOf([&] { writeFile(folder_.path().string(), ""); }), 75);
    EXPECT_EQ(failureNumberOf([&] { writeFile("", ""); }), 52);
    EXPECT_EQ(failureNumberOf([&] { removeFile(folder_.file("none")); }), 53);
    EXPECT_EQ(failureNumberOf([&] { removeFile(folder_.path().string()); }), 75);
    EXPECT_EQ(failureNumberOf([&] { makeFolder(folder_.path().string()); }), 75);
    EXPECT_EQ(failureNumberOf([&] { makeFolder(folder_.file("none/none")); }), 76);
}

TEST_F(Files, AFullDiskIsReportedAndIsNoLoss) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
    EXPECT_EQ(failureNumberOf([] { writeFile("/dev/full", "text"); }), 61);
}

TEST_F(Files, AreSavedUnderNamesAsLongAsNamesCanBe) {
    const std::string name(255, 'n');
    saveFile(folder_.file(name), "text");
    EXPECT_EQ(readFile(folder_.file(name)), "text");
}

TEST_F(Files, AreMadeAnewOnlyUnderAFreeName) {
    EXPECT_TRUE(saveNewFile(folder_.file("a"), "mine"));
    EXPECT_FALSE(saveNewFile(folder_.file("a"), "another's"));
    EXPECT_EQ(readFile(folder_.file("a")), "mine");
    EXPECT_EQ(failureNumberOf([&] { (void)saveNewFile(folder_.file("none/a"), ""); }), 76);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()), 1);
}

TEST_F(Files, OfTwoMakersAtOnceOneMakesIt) {
    for (int round = 0; round < 50; ++round) {
        const std::string path = folder_.file(std::to_string(round));
        bool first = false;
        bool second = false;
        std::thread other([&] { second = saveNewFile(path, "second"); });
        first = saveNewFile(path, "first");
        other.join();
        ASSERT_NE(first, second);
        ASSERT_EQ(readFile(path), first ? "first" : "second");
    }
}

TEST_F(Files, WhatAKilledSaveLeavesGoesOnceItIsOld) {
    const std::string young = ".kav-0123456789abcdef.new";
    const std::string old = ".kav-fedcba9876543210.new";
    const std::string users = ".kav-notes.new";
    for (const std::string& name : {young, old, users})
        writeFile(folder_.file(name), "part");
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(2);
    fs::last_write_time(folder_.file(old), longAgo);
    fs::last_write_time(folder_.file(users), longAgo);
    removeSaveLeftovers(folder_.path().string());
    EXPECT_TRUE(fileExists(folder_.file(young)));
    EXPECT_FALSE(fileExists(folder_.file(old)));
    EXPECT_TRUE(fileExists(folder_.file(users)));
    removeSaveLeftovers(folder_.file("none"));
}

TEST_F(Files, AreCopiedAndRemoved) {
    writeFile(folder_.file("a"), "text");
    copyFile(folder_.file("a"), folder_.file("b"));
    removeFile(folder_.file("a"));
    EXPECT_FALSE(fileExists(folder_.file("a")));
    EXPECT_EQ(readFile(folder_.file("b")), "text");
}

}  // namespace kav

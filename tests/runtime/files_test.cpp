// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/files.h"

#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

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

TEST_F(Files, ReplacingKeepsPermissionsAndFollowsLinks) {
    writeFile(folder_.file("real"), "old");
    fs::permissions(folder_.file("real"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real", folder_.file("link"));
    writeFile(folder_.file("link"), "new");
    EXPECT_TRUE(fs::is_symlink(folder_.file("link")));
    EXPECT_EQ(readFile(folder_.file("real")), "new");
    EXPECT_EQ(fs::status(folder_.file("real")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
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

TEST_F(Files, AreCopiedAndRemoved) {
    writeFile(folder_.file("a"), "text");
    copyFile(folder_.file("a"), folder_.file("b"));
    removeFile(folder_.file("a"));
    EXPECT_FALSE(fileExists(folder_.file("a")));
    EXPECT_EQ(readFile(folder_.file("b")), "text");
}

}  // namespace kav

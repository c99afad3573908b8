// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/batch_file.h"

#include "build/build_files.h"
#include "platform/dos_path.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kav {

using test::failureNumberOf;

namespace fs = std::filesystem;

namespace {

class ShortPath : public testing::Test {
  protected:
    fs::path make(const std::string& folder) {
        fs::create_directories(root_.path() / folder);
        return root_.path() / folder;
    }
    fs::path resolved(const std::string& line, const fs::path& applicationFolder) {
        return resolveShortPath(root_.path(), line, applicationFolder);
    }

    test::TemporaryFolder root_;
};

}  // namespace

TEST(BatchFileReader, TakesTheThreeLinesApart) {
    const BatchFile batch = parseBatchFile(batchFile("Z:\\home\\My Tools", "a & b"));
    EXPECT_EQ(batch.drive, "Z:\\");
    EXPECT_EQ(batch.changeDirectory, "cd\\home\\MyTools~1\\");
    EXPECT_EQ(batch.command, "asm");
    EXPECT_EQ(batch.arguments, "a & b");
}

TEST(BatchFileReader, KeepsAnEmptyProgramName) {
    EXPECT_EQ(parseBatchFile(batchFile("Z:\\Tools", "")).arguments, "");
}

TEST(BatchFileReader, RefusesEverythingElse) {
    for (const char* text :
         {"", "Z:\\\r\ncd\\a\\\r\n", "Z:\r\ncd\\\r\nasm a\r\n", "1:\\\r\ncd\\\r\nasm a\r\n",
          "Z:\\\r\nrd\\a\\\r\nasm a\r\n", "Z:\\\r\ncd\\\r\ndel a\r\n", "Z:\\\r\ncd\\\r\nasm\r\n",
          "Z:\\\r\ncd\\\r\nasm a\r\nasm b\r\n"}) {
        EXPECT_EQ(failureNumberOf([&] { (void)parseBatchFile(text); }), 5) << text;
    }
}

TEST_F(ShortPath, LeadsToTheFolderThatTheScriptWasWrittenFor) {
    for (const char* name :
         {"Tools", "My Tools", "a b/Long Folder Name/x", "Development", "\xC3\xA9 \xC3\xA9"}) {
        const fs::path folder = make(name);
        const std::string below = "/" + folder.lexically_relative(root_.path()).generic_string();
        EXPECT_EQ(resolved(changeDirectoryLine(dosForm(below)), folder), folder) << name;
    }
}

TEST_F(ShortPath, TakesTheNeighbourOnTheWayToTheApplicationFolder) {
    make("Program Data/KAV");
    const fs::path ours = make("Program Files/KAV");
    EXPECT_EQ(resolved("cd\\Progra~1\\KAV\\", ours), ours);
}

TEST_F(ShortPath, TakesTheFolderOnTheWayBeforeOneThatIsReallyCalledSo) {
    make("MyTools~1");
    const fs::path ours = make("My Tools");
    EXPECT_EQ(resolved("cd\\MyTools~1\\", ours), ours);
}

TEST_F(ShortPath, TakesAnExactNameBeforeAShortOne) {
    make("My Tools");
    const fs::path exact = make("MyTools~1");
    EXPECT_EQ(resolved("cd\\MyTools~1\\", "/elsewhere"), exact);
}

TEST_F(ShortPath, TakesTheOnlyFolderThatFits) {
    const fs::path folder = make("Program Files/My Tools");
    EXPECT_EQ(resolved("cd\\Progra~1\\MyTools~1\\", "/elsewhere"), folder);
}

TEST_F(ShortPath, LeavesAnOpenChoiceToNobody) {
    make("Program Data");
    make("Program Files");
    EXPECT_EQ(failureNumberOf([&] { (void)resolved("cd\\Progra~1\\", "/elsewhere"); }), 76);
}

TEST_F(ShortPath, FindsNoFilesAndNoMissingFolders) {
    make("Tools");
    EXPECT_EQ(failureNumberOf([&] { (void)resolved("cd\\Nothing\\", "/elsewhere"); }), 76);
    EXPECT_EQ(failureNumberOf([&] { (void)resolved("cd\\..\\", "/elsewhere"); }), 5);
    EXPECT_EQ(failureNumberOf([&] { (void)resolved("Tools", "/elsewhere"); }), 5);
}

TEST_F(ShortPath, LeadsNowhereButDown) {
    make("Tools/inner");
    const std::string outside = root_.path().parent_path().string();
    for (const std::string& line : {std::string("cd\\.\\"), std::string("cd\\Tools\\..\\..\\"),
                                    "cd\\" + outside + "\\", std::string("cd\\Tools/../..\\"),
                                    std::string("cd\\Tools/inner\\"), std::string("cd\\Tools\0x\\", 11)}) {
        EXPECT_EQ(failureNumberOf([&] { (void)resolved(line, "/elsewhere"); }), 5) << line;
    }
}

TEST_F(ShortPath, KeepsTheCaseOfNamesWhereItMatters) {
    make("Tools");
    if (fs::exists(root_.path() / "tools"))
        GTEST_SKIP() << "names that differ in case alone are the same here";
    EXPECT_EQ(failureNumberOf([&] { (void)resolved("cd\\tools\\", "/elsewhere"); }), 76);
}

TEST_F(ShortPath, OfTheRootIsTheRoot) {
    EXPECT_EQ(resolved("cd\\", root_.path()), root_.path());
}

}  // namespace kav

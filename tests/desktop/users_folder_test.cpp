// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/users_folder.h"

#include "runtime/files.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace kav::test {

namespace fs = std::filesystem;

/// A program that is installed for all, and the folder of one of its users.
class UsersFolder : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(program("include"));
        writeFile(program("prefs.ini"), "as installed");
        writeFile(program("asm"), "#!/bin/sh\necho 1\n");
        fs::permissions(program("asm"), fs::perms::owner_exec | fs::perms::owner_read);
        writeFile(program("kav-asm"), "1.0");
        writeFile(program("include/ti83.inc"), "equates");
    }

    void prepare() { prepareUsersFolder(folder_.file("lib/kav"), users("")); }
    [[nodiscard]] std::string program(const std::string& name) const {
        return folder_.file("lib/kav/" + name);
    }
    [[nodiscard]] std::string users(const std::string& name) const {
        return folder_.file("home/a b/" + name);
    }

    TemporaryFolder folder_;
};

TEST_F(UsersFolder, IsACompleteApplicationFolder) {
    prepare();
    EXPECT_EQ(readFile(users("prefs.ini")), "as installed");
    EXPECT_EQ(readFile(users("asm")), readFile(program("asm")));
    EXPECT_EQ(readFile(users("kav-asm")), "1.0");
    EXPECT_EQ(readFile(users("include/ti83.inc")), "equates");
}

TEST_F(UsersFolder, HoldsAScriptThatCanBeRunAndChanged) {
    prepare();
    EXPECT_FALSE(fs::is_symlink(users("asm")));
    const fs::perms wanted = fs::perms::owner_exec | fs::perms::owner_write | fs::perms::owner_read;
    EXPECT_EQ(fs::status(users("asm")).permissions() & wanted, wanted);
}

TEST_F(UsersFolder, KeepsWhatIsTheUsersOwn) {
    prepare();
    writeFile(users("prefs.ini"), "mine");
    writeFile(users("asm"), "my script");
    fs::create_directory(users("Projects"));
    fs::remove(users("kav-asm"));
    writeFile(users("kav-asm"), "my assembler");
    writeFile(program("prefs.ini"), "newer");
    writeFile(program("asm"), "newer");
    prepare();
    prepare();
    EXPECT_EQ(readFile(users("prefs.ini")), "mine");
    EXPECT_EQ(readFile(users("asm")), "my script");
    EXPECT_EQ(readFile(users("kav-asm")), "my assembler");
    EXPECT_TRUE(fs::exists(users("Projects")));
}

TEST_F(UsersFolder, FollowsWhatIsInstalled) {
    prepare();
    writeFile(program("asm"), "#!/bin/sh\necho 2\n");
    writeFile(program("kav-asm"), "2.0");
    writeFile(program("kavhelp.hlp"), "help");
    fs::remove_all(program("include"));
    prepare();
    EXPECT_EQ(readFile(users("asm")), "#!/bin/sh\necho 2\n");
    EXPECT_EQ(readFile(users("kav-asm")), "2.0");
    EXPECT_EQ(readFile(users("kavhelp.hlp")), "help");
    EXPECT_FALSE(fs::is_symlink(users("include")));
}

TEST_F(UsersFolder, FollowsTheProgramToAnotherFolder) {
    prepare();
    fs::rename(folder_.file("lib"), folder_.file("lib64"));
    prepareUsersFolder(folder_.file("lib64/kav"), users(""));
    EXPECT_EQ(readFile(users("kav-asm")), "1.0");
}

TEST_F(UsersFolder, PutsBackAScriptThatIsGone) {
    prepare();
    fs::remove(users("asm"));
    prepare();
    EXPECT_EQ(readFile(users("asm")), readFile(program("asm")));
}

TEST_F(UsersFolder, FailsWhereItCannotBeMade) {
    writeFile(folder_.file("home"), "a file");
    EXPECT_EQ(failureNumberOf([&] { prepare(); }), 75);
}

TEST_F(UsersFolder, IsNeededForAProgramOfAPackageAndNotInOnesOwnFolder) {
    EXPECT_TRUE(isSharedFolder("/usr/lib/kav-compiler"));
    EXPECT_TRUE(isSharedFolder("/usr/local/lib/kav-compiler"));
    // Even of root, who may write there: what root leaves in it would be handed on to the other users.
    EXPECT_TRUE(isSharedFolder("/opt/kav"));
    EXPECT_TRUE(isSharedFolder(folder_.file("nowhere")));
    EXPECT_FALSE(isSharedFolder(folder_.path().string()));
    EXPECT_EQ(applicationFolderFor(folder_.file("lib/kav"), users("")), folder_.file("lib/kav"));
    EXPECT_FALSE(fileExists(users("")));
}

}  // namespace kav::test

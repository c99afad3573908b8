// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/recovery_name.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

std::string firstName(std::string_view documentName) {
    return recoveryName(3, documentName, 1);
}

}  // namespace

TEST(RecoveryName, SaysWhichDocumentItIs) {
    EXPECT_EQ(firstName("/home/a/mygames/game.z80"), "game in mygames (unsaved).z80");
    EXPECT_EQ(firstName("C:\\src\\maze.asm"), "maze in src (unsaved).asm");
    EXPECT_EQ(firstName("Untitled"), "Untitled 3 (unsaved).kvf");
    EXPECT_EQ(firstName(""), "Untitled 3 (unsaved).kvf");
}

TEST(RecoveryName, DocumentsOfOneNameInTwoFoldersDiffer) {
    EXPECT_NE(firstName("/a/main.z80"), firstName("/b/main.z80"));
    EXPECT_NE(recoveryName(1, "Untitled", 1), recoveryName(2, "Untitled", 1));
}

TEST(RecoveryName, CountsOnWhereANameIsTaken) {
    EXPECT_EQ(recoveryName(3, "/a/main.z80", 2), "main in a (unsaved 2).z80");
    EXPECT_EQ(recoveryName(3, "Untitled", 11), "Untitled 3 (unsaved 11).kvf");
}

TEST(RecoveryName, EndsInOneOfTheEndingsThatOpenLists) {
    EXPECT_EQ(firstName("/a/GAME.Z80"), "GAME in a (unsaved).z80");
    EXPECT_EQ(firstName("/a/x.inc"), "x in a (unsaved).inc");
    EXPECT_EQ(firstName("/a/x.txt"), "x in a (unsaved).txt");
    EXPECT_EQ(firstName("/a/notes.s"), "notes.s in a (unsaved).kvf");
    EXPECT_EQ(firstName("/a/README"), "README in a (unsaved).kvf");
    EXPECT_EQ(firstName("/a/.z80"), ".z80 in a (unsaved).kvf");
}

TEST(RecoveryName, IsANameForEveryFileSystem) {
    EXPECT_EQ(firstName("/a<b/what?:\n\x7f.z80"), "what____ in a_b (unsaved).z80");
    EXPECT_EQ(firstName("/\xC3\xA4/\xE2\x82\xAC.z80"), "\xE2\x82\xAC in \xC3\xA4 (unsaved).z80");
    // Stray bytes, a half of a UTF-16 pair and an overlong sequence.
    EXPECT_EQ(firstName("/a/x\xFFy\xED\xA0\x80z\xC0\xAF.z80"), "x_y_z__ in a (unsaved).z80");
    EXPECT_EQ(firstName("/game.z80"), "game (unsaved).z80");
    EXPECT_EQ(firstName("game.z80"), "game (unsaved).z80");
}

TEST(RecoveryName, IsShortEnoughAndCutsNoCharacter) {
    std::string longName;
    while (longName.size() < 240)
        longName += "\xE2\x82\xAC";
    const std::string name = firstName("/" + longName + "/" + longName + ".z80");
    EXPECT_LT(name.size(), 220U);
    EXPECT_TRUE(name.ends_with("\xE2\x82\xAC (unsaved).z80"));
    EXPECT_EQ(name.find('_'), std::string::npos);
}

}  // namespace kav

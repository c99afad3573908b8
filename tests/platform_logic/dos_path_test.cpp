// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dos_path.h"

#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace kav {

using test::failureNumberOf;

TEST(DosForm, PutsTheFileTreeOnDriveZ) {
    EXPECT_EQ(dosForm("/home/me/KAV"), "Z:\\home\\me\\KAV");
    EXPECT_EQ(dosForm("/"), "Z:\\");
    EXPECT_EQ(dosForm("/a b/\xC3\xA9"), "Z:\\a b\\\xC3\xA9");
}

TEST(DosForm, LeadsBack) {
    EXPECT_EQ(slashForm("Z:\\home\\me\\KAV"), "/home/me/KAV");
    EXPECT_EQ(slashForm("z:\\"), "/");
}

TEST(DosForm, RefusesPathsThatItCannotName) {
    for (const char* path : {"", "home/me", "/a\\b", "/a\nb", "/a\rb"}) {
        EXPECT_EQ(failureNumberOf([&] { (void)dosForm(path); }), 52) << path;
    }
}

TEST(DosForm, KnowsNoOtherDrive) {
    for (const char* path : {"", "C:\\a", "Z:a", "/home"}) {
        EXPECT_EQ(failureNumberOf([&] { (void)slashForm(path); }), 76) << path;
    }
}

TEST(ShortFolderName, KeepsNamesOfEightCharacters) {
    EXPECT_EQ(shortFolderName("Tools"), "Tools");
    EXPECT_EQ(shortFolderName("Projects"), "Projects");
}

TEST(ShortFolderName, CutsLongerOnesToSix) {
    EXPECT_EQ(shortFolderName("Programme"), "Progra~1");
    EXPECT_EQ(shortFolderName("Program Files"), "Progra~1");
}

TEST(ShortFolderName, MarksNamesThatLostABlank) {
    EXPECT_EQ(shortFolderName("A B"), "AB~1");
    EXPECT_EQ(shortFolderName("My Tools"), "MyTools~1");
    EXPECT_EQ(shortFolderName("My  Folder"), "MyFolder~1");
}

TEST(ShortFolderName, NeverCutsInsideACharacter) {
    EXPECT_EQ(shortFolderName("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9"),
              "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");
    EXPECT_EQ(shortFolderName("12345\xC3\xA9 789"), "12345\xC3\xA9~1");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/application_folder.h"

#include "build/build_files.h"

#include <gtest/gtest.h>

namespace kav {

TEST(ApplicationFolder, JoinsNamesWithItsOwnSeparator) {
    const ApplicationFolder windows("C:\\Program Files\\KAV");
    EXPECT_EQ(windows.file("prefs.ini"), "C:\\Program Files\\KAV\\prefs.ini");
    EXPECT_EQ(windows.project("a.z80"), "C:\\Program Files\\KAV\\Projects\\a.z80");
    EXPECT_EQ(windows.project(), "C:\\Program Files\\KAV\\Projects");
    EXPECT_EQ(ApplicationFolder("\\\\server\\share").file("a"), "\\\\server\\share\\a");

    const ApplicationFolder other("/home/me/R\\D");
    EXPECT_EQ(other.file("prefs.ini"), "/home/me/R\\D/prefs.ini");
    EXPECT_EQ(other.project("a.z80"), "/home/me/R\\D/Projects/a.z80");
}

TEST(ApplicationFolder, EndsInNoSeparator) {
    EXPECT_EQ(ApplicationFolder("C:\\KAV\\").path(), "C:\\KAV");
    EXPECT_EQ(ApplicationFolder("/opt/kav/").path(), "/opt/kav");
}

TEST(ApplicationFolder, MayBeARoot) {
    EXPECT_EQ(ApplicationFolder("/").file("a"), "/a");
    const ApplicationFolder drive("C:\\");
    EXPECT_EQ(drive.file("a"), "C:\\a");
    EXPECT_EQ(batchFile(drive.path(), "a"), "C:\\\r\ncd\\\r\nasm a\r\n");
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer/viewer_window.h"

#include "runtime/failure.h"
#include "runtime/files.h"
#include "support/temporary_folder.h"
#include "viewer/help_window.h"
#include "viewer/listing_window.h"

#include <gtest/gtest.h>

namespace kav::viewer {

namespace {

QString pathIn(const test::TemporaryFolder& folder, const char* name, const std::string& content) {
    writeFile(folder.file(name), content);
    return QString::fromStdString(folder.file(name));
}

}  // namespace

TEST(ViewerWindow, AHelpFileOpensAsHelpAndOthersAsText) {
    const test::TemporaryFolder folder;
    const auto help =
        windowFor(pathIn(folder, "kavhelp.hlp", "<!DOCTYPE html><section id=\"a\"><p>x</p></section>"));
    EXPECT_NE(qobject_cast<HelpWindow*>(help.get()), nullptr);
    const auto listing = windowFor(pathIn(folder, "temp.lst", "0001   0000   nop\r\n"));
    EXPECT_NE(qobject_cast<ListingWindow*>(listing.get()), nullptr);
    EXPECT_TRUE(listing->windowTitle().endsWith("temp.lst"));
    const auto empty = windowFor(pathIn(folder, "empty.txt", ""));
    EXPECT_NE(qobject_cast<ListingWindow*>(empty.get()), nullptr);
}

TEST(ViewerWindow, AMissingFileIsAFailure) {
    const test::TemporaryFolder folder;
    try {
        (void)windowFor(QString::fromStdString(folder.file("none.lst")));
        FAIL() << "showed a file that is not there";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), kFileNotFound);
        EXPECT_NE(failure.description().find("none.lst"), std::string::npos) << "the user learns which file";
    }
    EXPECT_THROW((void)windowFor(QString::fromStdString(folder.path().string())), Failure);
}

TEST(ViewerWindow, TellsWhatHelps) {
    const QString help = cannotShow("/opt/kav/kavhelp.hlp", "File not found: /opt/kav/kavhelp.hlp");
    EXPECT_TRUE(help.startsWith("The file cannot be shown: File not found: /opt/kav/kavhelp.hlp."));
    EXPECT_TRUE(help.contains("Installing the program again"));
    EXPECT_TRUE(cannotShow("/opt/kav/temp.lst", "File not found").contains("Ctrl+L"));
    EXPECT_EQ(cannotShow("a.txt", "File not found: a.txt"),
              "The file cannot be shown: File not found: a.txt.");
}

}  // namespace kav::viewer

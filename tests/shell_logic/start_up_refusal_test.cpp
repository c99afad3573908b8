// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start_up_refusal.h"

#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace kav {

namespace {

void expectHolds(const std::string& text, const std::string& part) {
    EXPECT_NE(text.find(part), std::string::npos) << text << "\nshould hold: " << part;
}

}  // namespace

TEST(StartUpRefusal, NamesTheMissingPreferencesFileAndTheRemedy) {
    const std::string text =
        startUpRefusal(StartUpStage::ReadPreferences, "/app/prefs.ini", failureOf(kFileNotFound));
    expectHolds(text, "missing: /app/prefs.ini");
    expectHolds(text, "Put back");
}

TEST(StartUpRefusal, SaysWhatAShortPreferencesFileLacks) {
    const std::string text = startUpRefusal(StartUpStage::ReadPreferences, "/app/prefs.ini",
                                            failureOf(kInputPastEnd, "the preferences have 3 of 23 lines"));
    expectHolds(text, "too short: /app/prefs.ini");
    expectHolds(text, "3 of 23 lines");
    expectHolds(text, "Add the missing lines");
}

TEST(StartUpRefusal, PassesOnWhyThePreferencesCannotBeRead) {
    const std::string text =
        startUpRefusal(StartUpStage::ReadPreferences, "/app/prefs.ini", failureOf(kPermissionDenied));
    expectHolds(text, "Permission denied");
}

TEST(StartUpRefusal, TellsHowToGetPastAProjectsFolderThatIsThere) {
    const test::TemporaryFolder folder;
    const std::string projects = folder.file("Projects");
    std::filesystem::create_directory(projects);
    const std::string text =
        startUpRefusal(StartUpStage::MakeProjectsFolder, projects, failureOf(kPathFileAccess));
    expectHolds(text, "already there: " + projects);
    expectHolds(text, "line 16");
}

TEST(StartUpRefusal, TellsWhyTheProjectsFolderCannotBeMade) {
    const std::string text =
        startUpRefusal(StartUpStage::MakeProjectsFolder, "/nowhere/Projects", failureOf(kPathNotFound));
    expectHolds(text, "cannot be made: /nowhere/Projects");
    expectHolds(text, "Path not found");
}

TEST(StartUpRefusal, NamesTheCommandLinesFile) {
    const std::string text =
        startUpRefusal(StartUpStage::OpenCommandLine, "/a b.z80", failureOf(kFileNotFound, "/a b.z80"));
    expectHolds(text, "cannot be opened: /a b.z80");
    expectHolds(text, "File not found");
    expectHolds(text, "start without a file");
}

}  // namespace kav

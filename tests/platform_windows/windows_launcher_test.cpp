// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/windows_launcher.h"

#include "build/build_files.h"
#include "platform/batch_file.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "runtime/files.h"
#include "support/failure_number.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace kav {

using test::failureNumberOf;

namespace fs = std::filesystem;

namespace {

/// Starts a program that reports, from a folder whose name a command processor would stumble over.
class LauncherOnWindows : public testing::Test {
  protected:
    LauncherOnWindows() {
        fs::create_directory(pathOf(folder_.path()));
        SetEnvironmentVariableW(L"KAV_REPORT", wideText(folder_.file("report")).c_str());
    }

    void install(const std::string& name) { fs::copy_file(KAV_LAUNCHED_PROGRAM, pathOf(folder_.file(name))); }

    /// What the started program reported when it has ended.
    std::string launched(const std::string& commandLine, WindowStyle style = WindowStyle::Hidden) {
        if (fileExists(folder_.file("report"))) removeFile(folder_.file("report"));
        WindowsLauncher launcher(folder_);
        const auto id = static_cast<DWORD>(launcher.launch(commandLine, style));
        // The launcher has let go of the process; one that cannot be opened has ended already.
        if (const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id)) {
            WaitForSingleObject(process, INFINITE);
            CloseHandle(process);
        }
        return fileExists(folder_.file("report")) ? readFile(folder_.file("report")) : "nothing was started";
    }

    std::string built(const std::string& programName) {
        const std::string script = folder_.file(std::string(kBatchFileName));
        writeFile(script, batchFile(folder_.path(), programName));
        return launched(script);
    }

    int failureOfLaunch(const std::string& commandLine) {
        return failureNumberOf([&] { launched(commandLine); });
    }

    test::TemporaryFolder root_;
    ApplicationFolder folder_{bytesOf(root_.path() / "My Tools & more")};
};

std::string folderLine(const ApplicationFolder& folder) {
    return "folder " + folder.path() + "\n";
}

const std::string kHere = "folder " + bytesOf(fs::current_path()) + "\n";

}  // namespace

TEST_F(LauncherOnWindows, StartsAProgramWhosePathHoldsBlanks) {
    install("run it.exe");
    EXPECT_EQ(launched(folder_.file("run it.exe")), kHere + "show 0\n");
    EXPECT_EQ(launched(folder_.file("run it.exe") + " a b"), "argument a\nargument b\n" + kHere + "show 0\n");
    EXPECT_EQ(launched("\"" + folder_.file("run it.exe") + "\" \"a b\""),
              "argument a b\n" + kHere + "show 0\n");
}

TEST_F(LauncherOnWindows, FindsProgramsWithoutTheirExtension) {
    install("run.exe");
    EXPECT_EQ(launched(folder_.file("run") + " x"), "argument x\n" + kHere + "show 0\n");
}

TEST_F(LauncherOnWindows, TakesTheLongestProgramThatExists) {
    install("run.exe");
    writeFile(ApplicationFolder(bytesOf(root_.path())).file("My.exe"), "no program");
    EXPECT_EQ(launched(folder_.file("run.exe")), kHere + "show 0\n");
}

TEST_F(LauncherOnWindows, PassesTheWindowStyleOn) {
    install("run.exe");
    EXPECT_EQ(launched(folder_.file("run.exe"), WindowStyle::NormalFocus), kHere + "show 1\n");
    EXPECT_EQ(launched(folder_.file("run.exe"), WindowStyle::MaximizedFocus), kHere + "show 3\n");
}

TEST_F(LauncherOnWindows, MeansNothingToACommandProcessor) {
    install("run.exe");
    EXPECT_EQ(launched(folder_.file("run.exe") + " a&b |c %windir% >d"),
              "argument a&b\nargument |c\nargument %windir%\nargument >d\n" + kHere + "show 0\n");
}

TEST_F(LauncherOnWindows, KeepsTextInAnyScript) {
    install("\xC3\xA9\xE2\x82\xAC.exe");
    EXPECT_EQ(launched(folder_.file("\xC3\xA9\xE2\x82\xAC.exe") + " \xC5\x82"),
              "argument \xC5\x82\n" + kHere + "show 0\n");
}

TEST_F(LauncherOnWindows, LetsGoOfTheProcess) {
    install("run.exe");
    WindowsLauncher launcher(folder_);
    const auto id = static_cast<DWORD>(launcher.launch(folder_.file("run.exe"), WindowStyle::Hidden));
    const HANDLE process = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    // Handles are small multiples of four. Only the one opened here may belong to the process, and not even
    // that one is there when the process has already ended and nobody held it.
    int found = 0;
    for (std::uintptr_t value = 4; value < 0x2000; value += 4) {
        const auto handle = reinterpret_cast<HANDLE>(value);
        if (GetProcessId(handle) == id || GetProcessIdOfThread(handle) == id) ++found;
    }
    EXPECT_EQ(found, process == nullptr ? 0 : 1);
    if (process == nullptr) return;
    WaitForSingleObject(process, INFINITE);
    CloseHandle(process);
}

TEST_F(LauncherOnWindows, FindsNoProgramThatIsNotThere) {
    EXPECT_EQ(failureOfLaunch(folder_.file("none.exe")), 53);
    EXPECT_EQ(failureOfLaunch("C:\\no such folder\\none.exe a"), 53);
    EXPECT_EQ(failureOfLaunch(folder_.path()), 53);
    EXPECT_EQ(failureOfLaunch(""), 53);
    EXPECT_EQ(failureOfLaunch("  "), 53);
}

TEST_F(LauncherOnWindows, CannotStartWhatIsNoProgram) {
    writeFile(folder_.file("text.exe"), "no program");
    EXPECT_EQ(failureOfLaunch(folder_.file("text.exe")), 5);
    install("run.exe");
    EXPECT_EQ(failureOfLaunch(folder_.file("run.exe") + std::string(" a\0b", 4)), 5);
}

TEST_F(LauncherOnWindows, RunsTheUsersBatchFiles) {
    writeFile(folder_.file("my tool.bat"), "@echo %1-%2>\"%KAV_REPORT%\"\r\n");
    EXPECT_EQ(launched(folder_.file("my tool.bat") + " one two"), "one-two\r\n");
}

TEST_F(LauncherOnWindows, GivesABatchFileNoSecondCommand) {
    writeFile(folder_.file("tool.bat"), "@echo off\r\n");
    EXPECT_EQ(failureOfLaunch(folder_.file("tool.bat") + " & echo b>\"%KAV_REPORT%\""), 5);
    EXPECT_FALSE(fileExists(folder_.file("report")));
}

TEST_F(LauncherOnWindows, ReadsTheBuildScript) {
    install("asm.exe");
    EXPECT_EQ(built("hello"), "argument hello\n" + folderLine(folder_) + "show 0\n");
    EXPECT_EQ(built(""), folderLine(folder_) + "show 0\n");
}

TEST_F(LauncherOnWindows, NeverRunsWhatTheProgramsNameSays) {
    install("asm.exe");
    for (const char* name : {"a&b", "a & b", "|more", "%windir%", "a\"b", "-x", "^", "a\\", "\xC3\xA9"}) {
        EXPECT_EQ(built(name), "argument " + std::string(name) + "\n" + folderLine(folder_) + "show 0\n");
    }
}

TEST_F(LauncherOnWindows, BuildsThroughABatchFileWhereThatIsTheScript) {
    writeFile(folder_.file("asm.bat"), "@echo %1>\"%KAV_REPORT%\"\r\n");
    EXPECT_EQ(built("hello"), "hello\r\n");
    EXPECT_EQ(failureNumberOf([&] { built("a&b"); }), 5);
}

TEST_F(LauncherOnWindows, MissesTheScript) {
    EXPECT_EQ(failureNumberOf([&] { built("hello"); }), 53);
}

}  // namespace kav

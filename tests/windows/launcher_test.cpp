// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_files.h"
#include "platform/dos_path.h"
#include "platform/linux/console_window.h"
#include "platform/linux/linux_launcher.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/web_links.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

namespace kav::test {

namespace fs = std::filesystem;

namespace {

/// An application folder of the given name with a script that notes how it was called.
class Launcher : public testing::Test {
  protected:
    std::string makeFolderWithScript(const std::string& name) {
        const fs::path folder = folder_.path() / name;
        fs::create_directories(folder);
        writeScript(
            (folder / "asm").string(),
            "printf '%s|' \"$PWD\" \"$#\" \"$@\" > calling\necho out; echo err >&2\nmv calling called\n");
        return folder.string();
    }

    static void writeScript(const std::string& path, const std::string& text) {
        writeFile(path, "#!/bin/sh\n" + text);
        fs::permissions(path, fs::perms::owner_exec, fs::perm_options::add);
    }

    /// Launches the batch file that a build of that name writes, and waits for the script's note.
    static std::string build(const std::string& folder, const std::string& name,
                             WindowStyle style = WindowStyle::Hidden) {
        fs::remove(folder + "/called");
        writeFile(folder + "/comp.bat", batchFile(dosForm(folder), name));
        LinuxLauncher launcher{ApplicationFolder(folder)};
        EXPECT_GT(launcher.launch(folder + "/comp.bat", style), 0);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return fileExists(folder + "/called") && consoleIsComplete(style); }));
        return readFile(folder + "/called");
    }

    static ConsoleWindow* console() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<ConsoleWindow*>(window)) return found;
        }
        return nullptr;
    }

    static bool consoleIsComplete(WindowStyle style) {
        if (style == WindowStyle::Hidden) return console() == nullptr;
        return console() != nullptr && console()->toPlainText() == "out\nerr\n";
    }

    TemporaryFolder folder_;
};

}  // namespace

TEST_F(Launcher, ObeysTheBatchFileInAFolderWithAPlainName) {
    const std::string folder = makeFolderWithScript("Tools");
    EXPECT_EQ(build(folder, "game"), folder + "|1|game|");
}

TEST_F(Launcher, FindsFoldersWithBlanksAndLongNames) {
    const std::string folder = makeFolderWithScript("A very Long/My Tools/A B");
    EXPECT_EQ(build(folder, "game"), folder + "|1|game|");
}

TEST_F(Launcher, TellsNeighboursApartThatShareTheirFirstSixLetters) {
    makeFolderWithScript("calculators-old");
    const std::string folder = makeFolderWithScript("calculators-new");
    EXPECT_EQ(build(folder, "game"), folder + "|1|game|");
}

TEST_F(Launcher, NoShellSeesTheName) {
    const std::string folder = makeFolderWithScript("Tools");
    EXPECT_EQ(build(folder, "$(x) `y`"), folder + "|1|$(x) `y`|");
    EXPECT_EQ(build(folder, "a&b"), folder + "|1|a&b|");
    EXPECT_EQ(build(folder, ""), folder + "|0|");
}

TEST_F(Launcher, AShownScriptGetsAConsoleWithItsOutput) {
    const std::string folder = makeFolderWithScript("Tools");
    build(folder, "game", WindowStyle::NormalFocus);
    EXPECT_EQ(console(), nullptr) << "the console ends with its launcher";
}

TEST_F(Launcher, AMissingScriptIsFileNotFound) {
    const std::string folder = makeFolderWithScript("Tools");
    removeFile(folder + "/asm");
    writeFile(folder + "/comp.bat", batchFile(dosForm(folder), "game"));
    LinuxLauncher launcher{ApplicationFolder(folder)};
    try {
        launcher.launch(folder + "/comp.bat", WindowStyle::Hidden);
        FAIL() << "started a script that is not there";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 53);
    }
}

TEST_F(Launcher, AnotherBatchFileThanTheBuildsIsRefused) {
    const std::string folder = makeFolderWithScript("Tools");
    writeFile(folder + "/comp.bat", "del *.*\r\n");
    LinuxLauncher launcher{ApplicationFolder(folder)};
    EXPECT_THROW(launcher.launch(folder + "/comp.bat", WindowStyle::Hidden), Failure);
}

TEST_F(Launcher, TheListingOpensInTheViewerWithItsWholePath) {
    const std::string folder = makeFolderWithScript("My Tools");
    writeScript(folder + "/kav-viewer", "printf '%s|' \"$@\" > '" + folder + "/viewed'\n");
    LinuxLauncher launcher{ApplicationFolder(folder)};
    launcher.launch("C:\\WINDOWS\\notepad.exe " + folder + "/temp.lst", WindowStyle::NormalFocus);
    const auto viewed = [&folder] {
        return fileExists(folder + "/viewed") ? readFile(folder + "/viewed") : "";
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewed() == folder + "/temp.lst|"; }));
}

TEST_F(Launcher, TheHelpFileOpensInAMaximizedViewerUnderItsPathHere) {
    const std::string folder = makeFolderWithScript("My Tools");
    writeScript(folder + "/kav-viewer", "printf '%s|' \"$@\" > '" + folder + "/viewed'\n");
    LinuxLauncher launcher{ApplicationFolder(folder)};
    launcher.launch(helpCommand("", folder), WindowStyle::MaximizedFocus);
    const auto viewed = [&folder] {
        return fileExists(folder + "/viewed") ? readFile(folder + "/viewed") : "";
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return viewed() == "--maximized|" + folder + "/kavhelp.hlp|"; }))
        << viewed();
}

TEST_F(Launcher, AProgramThatIsNotThereIsFileNotFound) {
    LinuxLauncher launcher{ApplicationFolder(folder_.path().string())};
    try {
        launcher.launch(folder_.file("none") + " argument", WindowStyle::NormalFocus);
        FAIL() << "started a program that is not there";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 53);
    }
}

TEST_F(Launcher, AProgramGetsItsArgumentsAsTyped) {
    const std::string program = folder_.file("my tool");
    writeScript(program, "printf '%s|' \"$@\" > '" + folder_.file("called") + "'\n");
    LinuxLauncher launcher{ApplicationFolder(folder_.path().string())};
    launcher.launch(program + " one \"two words\" $(x)", WindowStyle::NormalFocus);
    const auto called = [this] {
        return fileExists(folder_.file("called")) ? readFile(folder_.file("called")) : "";
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return called() == "one|two words|$(x)|"; })) << called();
}

}  // namespace kav::test

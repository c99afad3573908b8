// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/linux_class_registry.h"
#include "runtime/files.h"
#include "settings/registration_plan.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <QProcess>
#include <QThread>

namespace kav::test {

namespace fs = std::filesystem;

namespace {

constexpr RegistrationBoxes kKvf{true, false, false};
constexpr RegistrationBoxes kZ80{false, true, false};

QStringList listOf(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list << QString::fromStdString(text);
    return list;
}

}  // namespace

/// A user's home and an application folder in it, on a path that every reader of a desktop entry must quote.
class FileTypes : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(applicationFolder());
        fs::copy(KAV_ICONS_FOLDER, applicationFolder() + "/icons", fs::copy_options::recursive);
        writeFile(source(), " ret\r\n");
    }

    [[nodiscard]] std::string applicationFolder() const {
        return home_.file("100% of \"my\" $HOME's `tools` \\ kav");
    }
    [[nodiscard]] std::string source() const { return home_.file("a program.kvf"); }
    [[nodiscard]] UserFolders folders() const { return {home_.file("data"), home_.file("settings")}; }
    [[nodiscard]] std::string data(const std::string& name) const { return folders().data + "/" + name; }
    [[nodiscard]] std::string defaultsFile() const { return folders().configuration + "/mimeapps.list"; }

    /// What Ok does in the Registry dialog.
    void registerTypes(const RegistrationBoxes& boxes) {
        LinuxClassRegistry registry(folders());
        const auto plan = registrationPlan(
            boxes, applicationFolder(), [&](const std::string& key) { return registry.defaultValue(key); });
        for (const RegistryStep& step : plan) {
            if (step.kind == RegistryStep::Kind::createKey) {
                registry.createKey(step.key);
            } else {
                registry.setDefaultValue(step.key, step.value);
            }
        }
        registry.announceChanges();
    }

    /// The output of a program in that home, without the last line's end.
    std::string output(const std::string& program, const std::vector<std::string>& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(home_.path().string()));
        environment.insert("XDG_DATA_HOME", QString::fromStdString(folders().data));
        environment.insert("XDG_CONFIG_HOME", QString::fromStdString(folders().configuration));
        // Where the program itself is installed for all, its file types would be known to every home.
        environment.insert("XDG_DATA_DIRS", QString::fromStdString(home_.file("nothing installed")));
        environment.insert("XDG_CURRENT_DESKTOP", "GNOME");
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QString::fromStdString(program), listOf(arguments));
        EXPECT_TRUE(process.waitForFinished(60000)) << program;
        exitCode_ = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        return process.readAllStandardOutput().trimmed().toStdString();
    }

    std::string unregister() { return output(KAV_UNREGISTER_COMMAND, {}); }

    /// The files below the home, without the indexes that the desktop keeps of them.
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(home_.path())) {
            const std::string path = entry.path().lexically_relative(home_.path()).string();
            const bool index = path.starts_with("data/mime/") && !path.starts_with("data/mime/packages");
            if (entry.is_regular_file() && !index && !path.ends_with("/mimeinfo.cache"))
                found.push_back(path);
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    TemporaryFolder home_;
    int exitCode_ = 0;
};

TEST_F(FileTypes, ARegisteredFileOpensInTheProgram) {
    registerTypes(kKvf);
    EXPECT_EQ(output("xdg-mime", {"query", "filetype", source()}), "text/x-kav-z80");
    EXPECT_EQ(output("xdg-mime", {"query", "default", "text/x-kav-z80"}), "kav-compiler.desktop");
}

TEST_F(FileTypes, AnExtensionThatIsNotAssociatedKeepsItsType) {
    writeFile(home_.file("a.z80"), " ret\r\n");
    registerTypes(kZ80);
    EXPECT_EQ(output("xdg-mime", {"query", "default", "text/x-kav-z80"}), "kav-compiler.desktop");
    EXPECT_EQ(output("xdg-mime", {"query", "filetype", home_.file("a.z80")}), "text/plain");
}

TEST_F(FileTypes, TheEntriesAreValid) {
    registerTypes(kKvf);
    for (const auto& entry : {kProgramEntry, kCompileEntry}) {
        EXPECT_EQ(output("desktop-file-validate", {data("applications/" + std::string(entry))}), "");
        EXPECT_EQ(exitCode_, 0);
    }
}

TEST_F(FileTypes, TheDesktopStartsTheProgramWithTheFileWhateverItsFolderIsCalled) {
    // In the program's place, a script that notes what it was started with.
    const std::string program = applicationFolder() + "/kav-compiler";
    writeFile(program,
              "#!/bin/sh\nprintf '%s|' \"${KAV_COMPILE-}\" \"$@\" >\"$HOME/started.new\"\n"
              "mv \"$HOME/started.new\" \"$HOME/started\"\n");
    fs::permissions(program, fs::perms::owner_all);
    registerTypes(kKvf);
    for (const auto& [entry, compile] : {std::pair(kProgramEntry, ""), std::pair(kCompileEntry, "1")}) {
        output("gio", {"launch", data("applications/" + std::string(entry)), source()});
        ASSERT_EQ(exitCode_, 0);
        while (!fileExists(home_.file("started")))
            QThread::msleep(10);
        EXPECT_EQ(readFile(home_.file("started")), compile + ("|" + source()) + "|");
        removeFile(home_.file("started"));
    }
}

TEST_F(FileTypes, TheIconIsInTheUsersTheme) {
    registerTypes(kKvf);
    for (const char* size : {"16x16", "48x48", "256x256"}) {
        const std::string icon = std::string("hicolor/") + size + "/apps/kav-compiler.png";
        EXPECT_EQ(readFile(data("icons/" + icon)), readFile(std::string(KAV_ICONS_FOLDER) + "/" + icon));
    }
}

TEST_F(FileTypes, UnregisteringLeavesTheHomeAsItWas) {
    fs::create_directories(data("mime/packages"));
    fs::create_directories(data("applications"));
    fs::create_directories(folders().configuration);
    const std::string others = "[Default Applications]\ntext/plain=other.desktop\n";
    writeFile(defaultsFile(), others);
    writeFile(data("applications/other.desktop"), "[Desktop Entry]\nType=Application\nName=O\nExec=o\n");
    writeFile(data("mime/packages/other.xml"), mimePackage({"Other", {".other"}, ""}));
    const auto before = files();

    registerTypes(kKvf);
    EXPECT_NE(files(), before);
    EXPECT_NE(unregister().find("kav-compiler.desktop"), std::string::npos);
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(files(), before);
    EXPECT_EQ(readFile(defaultsFile()), others);
    EXPECT_FALSE(fileExists(data("icons")));
    EXPECT_FALSE(fileExists(data("kav-compiler")));
    EXPECT_EQ(output("xdg-mime", {"query", "filetype", source()}), "text/plain");
    EXPECT_EQ(output("xdg-mime", {"query", "default", "text/x-kav-z80"}), "");

    EXPECT_EQ(unregister(), "No file types are registered.");
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(files(), before);
}

TEST_F(FileTypes, RegisteringWorksWithoutTheDesktopsIndexes) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    registerTypes(kKvf);
    qputenv("PATH", path);
    EXPECT_TRUE(fileExists(data("applications/kav-compiler.desktop")));
    EXPECT_FALSE(fileExists(data("mime/mime.cache")));
}

}  // namespace kav::test

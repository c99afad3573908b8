// SPDX-License-Identifier: GPL-3.0-or-later
// Kills the saving program at moments spread over its saves, and looks at what it leaves.
#include "killed_saves/numbered_text.h"
#include "runtime/files.h"
#include "shell/preferences_file.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QProcess>

namespace kav::test {

namespace fs = std::filesystem;

class KilledSaves : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directories(projects());
        fs::create_directories(folder_.path() / "documents");
        Preferences first;
        first.recentFiles[0] = document();
        writeFile(preferences(), formatPreferences(first));
        writeFile(document(), numberedText(0));
    }

    [[nodiscard]] std::string document() const { return folder_.file("documents/a.z80"); }
    [[nodiscard]] std::string preferences() const { return folder_.file("prefs.ini"); }
    [[nodiscard]] fs::path projects() const { return folder_.path() / "Projects"; }

    /// Starts the program with texts from `first` on, kills it so long after it has kept its first copies,
    /// and returns the number of the last text that it told to be kept.
    int saveAndKill(int first, std::chrono::microseconds after, int copies = 1) {
        QProcess program;
        program.start(KAV_SAVING_PROGRAM,
                      {QString::fromStdString(folder_.path().string()), QString::number(first)});
        QByteArray told;
        while (told.count('\n') < copies && program.waitForReadyRead(60000))
            told += program.readAllStandardOutput();
        std::this_thread::sleep_for(after);
        program.kill();
        EXPECT_TRUE(program.waitForFinished(60000));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit) << program.readAllStandardError().toStdString();
        const QList<QByteArray> lines = (told + program.readAllStandardOutput()).split('\n');
        return lines.value(lines.size() - 2).toInt();
    }

    /// The numbers of the texts that the document and the copies hold; a text that is not whole is a failure.
    [[nodiscard]] std::vector<int> textsOnDisk() const {
        std::vector<fs::path> files = {document()};
        for (const auto& entry : fs::directory_iterator(projects())) {
            if (!isSaveLeftover(entry.path().filename().string())) files.push_back(entry.path());
        }
        std::vector<int> numbers;
        for (const fs::path& file : files) {
            const auto number = numberOf(readFile(file.string()));
            EXPECT_TRUE(number.has_value()) << file << " is not whole";
            if (number) numbers.push_back(*number);
        }
        return numbers;
    }

    /// As a user would, who has looked at the copies.
    void removeCopies() const {
        std::vector<fs::path> copies;
        for (const auto& entry : fs::directory_iterator(projects())) {
            if (!isSaveLeftover(entry.path().filename().string())) copies.push_back(entry.path());
        }
        for (const fs::path& copy : copies)
            fs::remove(copy);
    }

    /// What killed saves have left in all folders.
    [[nodiscard]] std::vector<fs::path> leftovers() const {
        std::vector<fs::path> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) {
            if (isSaveLeftover(entry.path().filename().string())) found.push_back(entry.path());
        }
        return found;
    }

    TemporaryFolder folder_;
};

TEST_F(KilledSaves, LeaveTheOldTextOrTheNewOneWholeAndLoseNone) {
    constexpr int kKills = 200;
    constexpr std::chrono::microseconds kStep{137};
    int next = 1;
    for (int kill = 0; kill < kKills; ++kill) {
        const int kept = saveAndKill(next, kill * kStep);
        ASSERT_GE(kept, next) << "kill " << kill;
        const std::vector<int> texts = textsOnDisk();
        ASSERT_FALSE(HasFailure()) << "kill " << kill;
        ASSERT_GE(*std::max_element(texts.begin(), texts.end()), kept) << "lost at kill " << kill;
        ASSERT_EQ(parsePreferences(readFile(preferences())).recentFiles[0], document()) << "kill " << kill;
        removeCopies();
        next = kept + 10;
    }
    // The kills have met saves under way, and what those left goes when it is old.
    const std::vector<fs::path> left = leftovers();
    EXPECT_FALSE(left.empty());
    for (const fs::path& leftover : left)
        fs::last_write_time(leftover, fs::file_time_type::clock::now() - std::chrono::hours(2));
    saveAndKill(next, kStep, 3);
    for (const fs::path& leftover : left)
        EXPECT_FALSE(fs::exists(leftover)) << leftover;
}

}  // namespace kav::test

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Measures whole programs on a display: the start, opening long files, memory, and what an idle program does.
// Beside it run the toolkit's empty main window and an editor on the same text component.
// usage: program_bench, with a display and a window manager
#include "runtime/files.h"
#include "shell/preferences_file.h"
#include "support/temporary_folder.h"
#include "table.h"
#include "watched_program.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <thread>

#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace {

using namespace kav;
using bench::Unit;
using bench::WatchedProgram;

/// A program as a user starts it, and what the title of its window holds then.
struct Subject {
    QString program;
    QStringList arguments;
    QString title;
};

struct Cost {
    double seconds = std::numeric_limits<double>::max();
    double memory = std::numeric_limits<double>::max();
};

class Workbench {
  public:
    Workbench() {
        std::filesystem::copy(KAV_APP_DIR, folder_.path() / "app", std::filesystem::copy_options::recursive);
        Preferences preferences = parsePreferences(firstRunPreferences());
        preferences.firstRun = false;
        preferences.browserPath = "x-www-browser";
        writeFile(folder_.file("app/prefs.ini"), formatPreferences(preferences));
    }

    [[nodiscard]] Subject ours(const QStringList& files = {}) const {
        return {path("app/kav-compiler"), files, "KAV Compiler"};
    }
    [[nodiscard]] static Subject emptyWindow() { return {KAV_EMPTY_WINDOW, {}, "Empty Window"}; }
    [[nodiscard]] static Subject editor(const QStringList& files = {}) { return {"scite", files, "SciTE"}; }

    /// A file of so many megabytes.
    QString makeFile(const std::string& name, std::size_t megabytes) {
        constexpr std::string_view kLine = "label: ld a,(hl) ; a line of a usual length\r\n";
        std::string text;
        while (text.size() < megabytes * 1'000'000)
            text += kLine;
        writeFile(folder_.file(name), text);
        return path(name);
    }

    /// The least of several sessions. Memory is looked at when what begins in the background is there as
    /// well.
    [[nodiscard]] Cost costOf(const Subject& subject, int rounds) const {
        using namespace std::chrono_literals;
        constexpr auto kSettling = 1s;
        Cost least;
        for (int round = 0; round < rounds; ++round) {
            WatchedProgram watched(subject.program, subject.arguments);
            least.seconds = std::min(least.seconds, watched.secondsUntilReady(subject.title));
            std::this_thread::sleep_for(kSettling);
            least.memory = std::min(least.memory, watched.memory());
        }
        return least;
    }

    /// With the keys pressed once the window is there. The program then has the keyboard.
    [[nodiscard]] double wakeupsOf(const Subject& subject, const QStringList& keys) const {
        constexpr int kSettling = 15;
        constexpr int kCounted = 10;
        WatchedProgram watched(subject.program, subject.arguments);
        (void)watched.secondsUntilReady(subject.title);
        if (!keys.empty()) QProcess::execute("xdotool", QStringList{"key", "--delay", "700"} + keys);
        (void)watched.wakeupsPerSecond(kSettling);
        return watched.wakeupsPerSecond(kCounted);
    }

  private:
    [[nodiscard]] QString path(const std::string& name) const {
        return QString::fromStdString(folder_.file(name));
    }

    test::TemporaryFolder folder_;
};

void measureOpening(Workbench& workbench, const Cost& ours, const Cost& editor) {
    for (const std::size_t megabytes : {1U, 10U, 100U}) {
        const QString file = workbench.makeFile("long.asm", megabytes);
        const std::string size = std::to_string(megabytes) + " MB";
        const int rounds = megabytes < 100 ? 3 : 2;
        const Cost oursWithFile = workbench.costOf(workbench.ours({file}), rounds);
        const Cost editorWithFile = workbench.costOf(workbench.editor({file}), rounds);
        bench::printRow("start with a file of " + size, oursWithFile.seconds, editorWithFile.seconds,
                        "scite");
        if (megabytes < 100) continue;
        const double bytes = static_cast<double>(megabytes) * 1e6;
        bench::printRow("memory for each byte of a document", (oursWithFile.memory - ours.memory) / bytes,
                        (editorWithFile.memory - editor.memory) / bytes, "scite", Unit::bytes);
    }
}

void measureIdleness(Workbench& workbench) {
    QStringList files;
    QStringList keys;
    for (int i = 0; i < 10; ++i) {
        files << workbench.makeFile("file" + std::to_string(i) + ".asm", 1);
        if (i > 0)
            keys << "ctrl+n"
                 << "Return";  // with the title that is offered
    }
    bench::printRow("wakeups a second, idle with ten documents", workbench.wakeupsOf(workbench.ours(), keys),
                    workbench.wakeupsOf(workbench.editor(files), {}),
                    "scite (the goal is 1, the usage clock)", Unit::plain);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    Workbench workbench;
    constexpr int kRounds = 5;
    const Cost ours = workbench.costOf(workbench.ours(), kRounds);
    const Cost empty = workbench.costOf(workbench.emptyWindow(), kRounds);
    const Cost editor = workbench.costOf(workbench.editor(), kRounds);
    bench::printRow("start to the first window at rest", ours.seconds, empty.seconds,
                    "the toolkit's empty main window");
    bench::printRow("start to the first window at rest", ours.seconds, editor.seconds, "scite");
    bench::printRow("memory of an empty document", ours.memory, empty.memory,
                    "the toolkit's empty main window", Unit::bytes);
    bench::printRow("memory of an empty document", ours.memory, editor.memory, "scite", Unit::bytes);
    measureOpening(workbench, ours, editor);
    measureIdleness(workbench);
    return 0;
}

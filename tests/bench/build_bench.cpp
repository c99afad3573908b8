// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the way from Ctrl+L to "Success." for the example, in its parts: what the program does itself,
// starting the script, the script, and the wait for the next look at its verdict.
#include "build/build_verdict.h"
#include "documents/document_window.h"
#include "platform/linux/linux_launcher.h"
#include "runtime/files.h"
#include "shell/main_window.h"
#include "shell/preferences_file.h"
#include "stopwatch.h"
#include "support/scripted_platform.h"
#include "support/temporary_folder.h"
#include "table.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <string>
#include <thread>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QStatusBar>

namespace {

using namespace kav;

constexpr int kRounds = 10;

/// The launcher of the desktop, with a clock on it.
class TimedLauncher : public ProcessLauncher {
  public:
    explicit TimedLauncher(const ApplicationFolder& folder) : launcher_(folder) {}

    double seconds = 0;

    long launch(const std::string& commandLine, WindowStyle style) override {
        long taskId = 0;
        seconds = bench::secondsOf([&] { taskId = launcher_.launch(commandLine, style); });
        return taskId;
    }

  private:
    LinuxLauncher launcher_;
};

/// One build, in seconds.
struct Build {
    double request = 0;  ///< until the script has been started, without that
    double start = 0;
    double script = 0;
    double poll = 0;

    [[nodiscard]] double whole() const { return request + start + script + poll; }
};

class Bench {
  public:
    Bench() {
        std::filesystem::copy(KAV_APP_DIR, folder_.path() / "app", std::filesystem::copy_options::recursive);
        Preferences preferences = parsePreferences(firstRunPreferences());
        preferences.firstRun = false;
        preferences.make8xp = false;
        writeFile(application_.file("prefs.ini"), formatPreferences(preferences));
        Platform platform = desktop_.platform();
        compiler_ = std::make_unique<Compiler>(
            Platform{platform.boxes, platform.fileChooser, launcher_, platform.clipboard, platform.clock,
                     platform.random, platform.environment, platform.registry},
            application_);
        compiler_->show();
        compiler_->load(application_.file("examples/hello.z80"));
    }

    Build build() {
        desktop_.boxes.typed = {"HELLO"};
        Build times;
        times.request = bench::secondsOf([&] { compiler_->menuItem("comp")->trigger(); }) - launcher_.seconds;
        times.start = launcher_.seconds;
        // The program looks at the verdict in its own time; this sees when it is there.
        std::future<double> script = std::async(std::launch::async, [this] { return secondsUntilVerdict(); });
        const QLabel* status = compiler_->statusBar()->findChild<QLabel*>("stat1");
        const double rest = bench::secondsOf([&] {
            while (status->text() != "Success.")
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        });
        times.script = script.get();
        times.poll = rest - times.script;
        return times;
    }

  private:
    [[nodiscard]] double secondsUntilVerdict() const {
        using namespace std::chrono_literals;
        return bench::secondsOf([&] {
            while (verdictOf(readFile(application_.file("errLog.txt"))) != Verdict::Success)
                std::this_thread::sleep_for(200us);
        });
    }

    test::TemporaryFolder folder_;
    ApplicationFolder application_{folder_.file("app")};
    test::ScriptedPlatform desktop_;
    TimedLauncher launcher_{application_};
    std::unique_ptr<Compiler> compiler_;
};

/// A process of the toolkit that does nothing, until it has been started and until it has ended.
struct EmptyProcess {
    double start = 0;
    double whole = 0;
};

EmptyProcess emptyProcess() {
    EmptyProcess times;
    QProcess process;
    times.start = bench::secondsOf([&] {
        process.start("/bin/sh", {"-c", "exec true"});
        process.waitForStarted();
    });
    times.whole = times.start + bench::secondsOf([&] { process.waitForFinished(); });
    return times;
}

Build lesser(const Build& a, const Build& b) {
    return a.whole() < b.whole() ? a : b;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    Bench bench;
    Build best = bench.build();
    EmptyProcess peer = emptyProcess();
    for (int round = 1; round < kRounds; ++round) {
        best = lesser(best, bench.build());
        const EmptyProcess again = emptyProcess();
        peer = {std::min(peer.start, again.start), std::min(peer.whole, again.whole)};
    }
    bench::printAlone("Ctrl+L to \"Success.\" on the example", best.whole(), "the four parts that follow");
    bench::printAlone("  asking, writing three files", best.request, "each file through a neighbour");
    bench::printRow("  starting the script", best.start, peer.start, "the toolkit starting a shell");
    bench::printRow("  the script, until its verdict", best.script, peer.whole,
                    "a shell that starts nothing");
    bench::printAlone("  until the verdict is looked at", best.poll, "the program looks every 100 ms");
}

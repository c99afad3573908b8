// SPDX-License-Identifier: GPL-3.0-or-later
// kav-monkey APPLICATION_FOLDER SEED SECONDS: starts the program's main window in that folder and lets a
// monkey use it. Prints what the monkey does; exit code 3 says that a document was lost.
#include "ledger.h"
#include "monkey.h"
#include "platform/desktop/desktop_environment.h"
#include "platform/desktop/desktop_services.h"
#include "platform/linux/linux_class_registry.h"
#include "platform/linux/linux_launcher.h"
#include "shell/application.h"
#include "shell/main_window.h"
#include "watched_desktop.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

constexpr int kLostDocument = 3;

int useProgram(const std::string& applicationFolder, unsigned seed, int seconds) {
    const kav::ApplicationFolder folder(applicationFolder);
    // A file may be named relative to the folder where the program was started.
    kav::test::Ledger ledger({applicationFolder, std::filesystem::current_path()});
    kav::test::WatchedBoxes boxes(ledger);
    kav::test::WatchedFileChooser fileChooser(ledger);
    kav::LinuxLauncher launcher(folder);
    kav::DesktopClipboard clipboard;
    kav::SystemClock clock;
    kav::SeededRandomNumbers random;
    kav::DesktopEnvironment environment;
    kav::LinuxClassRegistry registry(kav::UserFolders::ofUser());
    kav::Compiler compiler({boxes, fileChooser, launcher, clipboard, clock, random, environment, registry},
                           folder);
    kav::test::Monkey monkey(compiler, ledger, seed, seconds);
    // Nothing but the program's windows is within reach of the mouse.
    compiler.showMaximized();
    monkey.start();
    compiler.load("");
    const int code = kav::Application::exec();
    for (const std::string& loss : ledger.losses())
        std::cerr << "kav-monkey: " << loss << '\n';
    return ledger.losses().empty() ? code : kLostDocument;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    kav::Application application(argumentCount, arguments);
    if (argumentCount != 4) {
        std::cerr << "usage: kav-monkey APPLICATION_FOLDER SEED SECONDS\n";
        return 2;
    }
    try {
        return useProgram(arguments[1], static_cast<unsigned>(std::stoul(arguments[2])),
                          std::stoi(arguments[3]));
    } catch (const std::exception& error) {
        kav::Application::endWithFailure(error.what());
    }
}

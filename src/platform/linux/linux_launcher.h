// SPDX-License-Identifier: GPL-3.0-or-later
// Starts programs on Linux, with stand-ins for those of another system.
#pragma once

#include "platform/application_folder.h"
#include "platform/process_launcher.h"

#include <memory>

#include <QObject>

class QProcess;

namespace kav {

class ConsoleWindow;

/// Three programs have stand-ins: `iexplore.exe` is the desktop's browser, `notepad.exe` and `winhelp.exe`
/// are the viewer that ships with the program. A batch file is obeyed as it was written. Everything else is
/// started as it stands; no shell sees a command line.
class LinuxLauncher : public QObject, public ProcessLauncher {
    Q_OBJECT

  public:
    explicit LinuxLauncher(ApplicationFolder applicationFolder);
    ~LinuxLauncher() override;

    long launch(const std::string& commandLine, WindowStyle style) override;

  private:
    long runBatch(const std::string& path, WindowStyle style);
    long startDetached(const std::string& program, const std::vector<std::string>& arguments);
    QProcess* makeConsoleProcess(const std::string& title, WindowStyle style);

    ApplicationFolder applicationFolder_;
    std::unique_ptr<ConsoleWindow> console_;
};

}  // namespace kav

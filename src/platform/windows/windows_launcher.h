// SPDX-License-Identifier: GPL-3.0-or-later
// Starts programs on Windows.
#pragma once

#include "platform/application_folder.h"
#include "platform/process_launcher.h"

namespace kav {

/// Starts each command line as the system would, with the longest existing program path at its start where
/// that holds blanks and no quotes.
///
/// The build script is not handed to the system's command processor, for three reasons: its last line holds
/// what the user typed, and for the processor "asm a&b" is two commands; its short folder names ("MyTools~1")
/// are the program's own and need not exist on the disk; and its first line ("C:\") is a folder, no command.
/// It is read as on every system, and the `asm` (.exe, .bat or .cmd) in the folder that it leads to is
/// started there, with the name as its one argument.
///
/// Batch files that the user has chosen are run by the command processor, which nothing else can; a command
/// line that would be more than one command to it is refused.
class WindowsLauncher : public ProcessLauncher {
  public:
    explicit WindowsLauncher(ApplicationFolder applicationFolder);

    long launch(const std::string& commandLine, WindowStyle style) override;

  private:
    [[nodiscard]] long runBuildScript(const std::string& path, WindowStyle style) const;

    ApplicationFolder applicationFolder_;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// From a document to a calculator program, or to a list of errors.
#pragma once

#include "build/build_files.h"

#include <functional>
#include <string>

#include <QPointer>
#include <QTimer>

namespace kav {

class Doc;
class dbgr;
class Workspace;

/// Compile for Debug: asks for a name, writes what the build script needs, starts the script and polls for
/// its verdict; then offers the program files to be saved, or the errors to be made tasks.
class BuildCommands {
  public:
    /// `taskList` gives the task list window, which is made when it is first needed.
    BuildCommands(Workspace& workspace, std::function<dbgr&()> taskList);

    void comp_Click();

    /// Polls for the script's verdict every 100 ms while a build runs.
    [[nodiscard]] QTimer& comptime() { return comptime_; }
    void comptime_Timer();

    [[nodiscard]] const BuildState& state() const { return state_; }

  private:
    void request();
    void poll();
    std::string askForName(const std::string& defaultName);
    void startBuild(const std::string& name, Doc& document);
    void succeed();
    void saveProgram(const char* title, const char* filter, const std::string& extension);
    void fail();
    void markErrors();
    void importErrors();

    Workspace& workspace_;
    std::function<dbgr&()> taskList_;
    BuildState state_;
    QPointer<Doc> built_;  ///< the document that was built last, unless it is closed
    QTimer comptime_;
};

}  // namespace kav

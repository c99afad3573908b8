// SPDX-License-Identifier: GPL-3.0-or-later
// The Tools menu's entries for the user's own tools.
#include "tools/custom_tool_commands.h"

#include "platform/desktop/bring_to_front.h"
#include "runtime/files.h"
#include "shell/preferences_file.h"
#include "shell/trapped.h"
#include "tools/custom_tools.h"
#include "tools/custom_tools_window.h"

namespace kav {

CustomToolCommands::CustomToolCommands(Workspace& workspace) : workspace_(workspace) {}

CustomToolCommands::~CustomToolCommands() {
    // The dialog has no owner that would take it along.
    delete dialog_;
}

void CustomToolCommands::set1_Click(std::size_t index) {
    const auto& tool = workspace_.preferences().customTools.at(index);
    const auto commandLine = customToolCommand(tool.name, tool.commandLine);
    if (!commandLine) return;
    try {
        workspace_.platform().launcher.launch(*commandLine, WindowStyle::NormalFocus);
    } catch (const Failure&) {
        return;
    }
}

void CustomToolCommands::setall_Click() {
    // Reading is the dialog's own work, which no trap guards; showing it is this command's.
    const std::string path = workspace_.applicationFolder().file("prefs.ini");
    const PreferencesTable table(readFile(path));
    trapped(workspace_, "setall_Click", [&] {
        if (dialog_ == nullptr) dialog_ = new custset(path, table);
        bringToFront(*dialog_);
    });
}

}  // namespace kav

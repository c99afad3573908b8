// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that open the tool windows, and what outlives those windows.
#include "tools/tool_commands.h"

#include "shell/workspace.h"
#include "tools/mirage_wizard_window.h"
#include "tools/sprite_editor_window.h"
#include "tools/stack_visualizer_window.h"
#include "tools/string_converter_window.h"

namespace kav {

namespace {

/// Brings the window to the front, a new one when none is open.
template <typename Window, typename... Arguments>
Window& openedOnce(QPointer<Window>& window, Arguments&&... arguments) {
    // A closed window is still there for a moment, until the toolkit deletes it.
    const bool isOpen = window != nullptr && window->isVisible();
    if (!isOpen) window = new Window(std::forward<Arguments>(arguments)...);
    window->bringToFront();
    return *window;
}

}  // namespace

ToolCommands::ToolCommands(Workspace& workspace, QWidget& owner) : workspace_(workspace), owner_(owner) {}

void ToolCommands::svbar_Click() {
    openedOnce(stackVisualizer_, workspace_, &owner_, stack_);
}

void ToolCommands::strconvopen_Click() {
    openedOnce(stringConverter_, workspace_, &owner_);
}

void ToolCommands::sprdef_Click() {
    openedOnce(spriteEditor_, workspace_, &owner_, sprite_);
}

void ToolCommands::showMirageWizard(MirageKind kind) {
    openedOnce(mirageWizard_, workspace_, &owner_, button_).selectKind(kind);
}

}  // namespace kav

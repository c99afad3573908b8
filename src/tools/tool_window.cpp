// SPDX-License-Identifier: GPL-3.0-or-later
// What all tool windows share: modeless over the main window, controls placed in twips.
#include "tools/tool_window.h"

#include "documents/document_window.h"
#include "documents/text_box.h"
#include "platform/desktop/bring_to_front.h"
#include "shell/workspace.h"

#include <algorithm>

#include <QPushButton>

namespace kav {

namespace {

/// The text height, in logical pixels, that the windows' places in twips are made for.
constexpr int kTextSize = 11;

}  // namespace

// A dialog rather than a tool window: the toolkit would hand a tool window's keys to its owner's menu.
ToolWindow::ToolWindow(Workspace& workspace, QWidget* owner, const char* name, const char* caption)
    : QWidget(owner, Qt::Dialog), workspace_(workspace) {
    setObjectName(name);
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose);
}

void ToolWindow::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    kav::bringToFront(*this);
}

void ToolWindow::adopt(QWidget& control, const char* name, const TwipsRect& at) {
    control.setObjectName(name);
    control.setGeometry(at.toPixels());
    QFont font = control.font();
    font.setPixelSize(kTextSize);
    control.setFont(font);
    // A press that a control has no use for is not one on the window below it.
    control.setAttribute(Qt::WA_NoMousePropagation);
    // Enter presses the button that has the keyboard, as in a dialog.
    if (auto* button = qobject_cast<QPushButton*>(&control)) button->setAutoDefault(true);
}

void ToolWindow::narrowToFit(QWidget& control) const {
    constexpr int kNarrowest = 60;
    constexpr int kStep = 5;
    const int room = std::min(control.width(), width() - control.x());
    QFont font = control.font();
    for (int percent = 100 - kStep; control.sizeHint().width() > room && percent >= kNarrowest;
         percent -= kStep) {
        font.setStretch(percent);
        control.setFont(font);
    }
}

void ToolWindow::insertAtCursor(const std::string& text) {
    Doc* document = workspace_.activeDocument();
    if (workspace_.values().openDocuments == 0 || document == nullptr) return;
    document->txt().replaceSelection(text);
}

}  // namespace kav

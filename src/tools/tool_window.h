// SPDX-License-Identifier: GPL-3.0-or-later
// What all tool windows share: modeless over the main window, controls placed in twips.
#pragma once

#include "platform/desktop/twips.h"

#include <string>

#include <QWidget>

namespace kav {

class Workspace;

/// A modeless window above its owner. It is made when it opens and deleted when it closes, so it starts
/// afresh each time; what is to outlive it belongs to ToolCommands.
class ToolWindow : public QWidget {
    Q_OBJECT

  public:
    /// Shows the window, restores it from an icon, and gives it the keyboard.
    void bringToFront();

  protected:
    ToolWindow(Workspace& workspace, QWidget* owner, const char* name, const char* caption);

    [[nodiscard]] Workspace& workspace() const { return workspace_; }

    /// Makes a control with a caption or initial text at its place.
    template <typename Control>
    Control* place(const char* name, const char* caption, const TwipsRect& at) {
        auto* control = new Control(caption, this);
        adopt(*control, name, at);
        return control;
    }

    /// Narrows the letters of a label or option until its text fits its place, whatever the desktop's font.
    void narrowToFit(QWidget& control) const;

    /// Puts the text in place of the active document's selection; does nothing while no document is open.
    void insertAtCursor(const std::string& text);

  private:
    static void adopt(QWidget& control, const char* name, const TwipsRect& at);

    Workspace& workspace_;
};

}  // namespace kav

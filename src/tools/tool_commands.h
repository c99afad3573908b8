// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that open the tool windows, and what outlives those windows.
#pragma once

#include "tools/monochrome_bitmap.h"

#include <QPointer>

class QWidget;

namespace kav {

class Form2;
class Workspace;

/// Opens each tool once: choosing an open one again brings it to the front. Drawings last as long as the
/// program, closed windows or not.
class ToolCommands {
  public:
    /// The tool windows stay above `owner`, the main window.
    ToolCommands(Workspace& workspace, QWidget& owner);

    void sprdef_Click();

  private:
    Workspace& workspace_;
    QWidget& owner_;
    SpriteBitmap sprite_;
    QPointer<Form2> spriteEditor_;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that open the tool windows, and what outlives those windows.
#pragma once

#include "tools/mirage_program.h"
#include "tools/monochrome_bitmap.h"
#include "tools/stack_model.h"

#include <QPointer>

class QWidget;

namespace kav {

class Form1;
class Form2;
class StrConv;
class Workspace;
class sv;

/// Opens each tool once: choosing an open one again brings it to the front. Drawings and the last popped
/// value last as long as the program, closed windows or not.
class ToolCommands {
  public:
    /// The tool windows stay above `owner`, the main window.
    ToolCommands(Workspace& workspace, QWidget& owner);

    void svbar_Click();
    void strconvopen_Click();
    void sprdef_Click();
    /// Opens the wizard for MirageOS programs with the kind selected.
    void showMirageWizard(MirageKind kind);

  private:
    Workspace& workspace_;
    QWidget& owner_;
    SpriteBitmap sprite_;
    ButtonBitmap button_;
    StackModel stack_;
    QPointer<sv> stackVisualizer_;
    QPointer<StrConv> stringConverter_;
    QPointer<Form2> spriteEditor_;
    QPointer<Form1> mirageWizard_;
};

}  // namespace kav

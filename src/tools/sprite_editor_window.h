// SPDX-License-Identifier: GPL-3.0-or-later
// The sprite editor.
#pragma once

#include "tools/drawing_window.h"
#include "tools/monochrome_bitmap.h"

namespace kav {

/// "Pixmoor": the left button sets cells of an 8 by 8 sprite, the others clear them; the sprite goes as
/// ".db %" lines into the active document or to the clipboard. A window that opens shows no cells until
/// Refresh, and every Refresh chooses new colours.
class Form2 : public DrawingWindow {
    Q_OBJECT

  public:
    Form2(Workspace& workspace, QWidget* owner, SpriteBitmap& sprite);

  protected:
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void Command1_Click();
    void Command2_Click();
    void Command4_Click();
    void Command6_Click();

    void drawCell(Cell cell);

    SpriteBitmap& sprite_;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// A tool window whose ground is a drawing of cells.
#pragma once

#include "tools/drawing_surface.h"
#include "tools/monochrome_bitmap.h"
#include "tools/tool_window.h"

#include <QPointF>

namespace kav {

/// What the sprite editor and the button designer share: a drawing that covering and uncovering the window
/// leaves as it is, and pointer positions in centimetres.
class DrawingWindow : public ToolWindow {
    Q_OBJECT

  protected:
    /// `drawing` is how far the drawing reaches, in centimetres.
    DrawingWindow(Workspace& workspace, QWidget* owner, const char* name, const char* caption,
                  QPointF drawing);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// The pointer's place in centimetres.
    [[nodiscard]] static QPointF placeOf(const QMouseEvent& event);
    /// The left button and no other is down: the button that sets cells, where all others clear them.
    [[nodiscard]] static bool setsCells(const QMouseEvent& event);

    /// What has been drawn on it appears with the next update().
    [[nodiscard]] DrawingSurface& surface() { return surface_; }

    /// Erases the drawing and hands each set cell, column by column, to `draw`.
    template <typename Bitmap, typename Draw>
    void redraw(const Bitmap& bitmap, Draw draw) {
        surface_.erase();
        for (int x = 1; x <= Bitmap::kColumns; ++x) {
            for (int y = 1; y <= Bitmap::kRows; ++y) {
                if (bitmap.cell({x, y}) != 0) draw(Cell{x, y});
            }
        }
        update();
    }

  private:
    DrawingSurface surface_;
};

}  // namespace kav

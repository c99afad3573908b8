// SPDX-License-Identifier: GPL-3.0-or-later
// A tool window whose ground is a drawing of cells.
#include "tools/drawing_window.h"

#include "platform/desktop/twips.h"

#include <QMouseEvent>
#include <QPainter>

namespace kav {

DrawingWindow::DrawingWindow(Workspace& workspace, QWidget* owner, const char* name, const char* caption,
                             QPointF drawing)
    : ToolWindow(workspace, owner, name, caption), surface_(drawing) {
    // The ground has the colour of button faces, and so has what an erasing disc leaves.
    setBackgroundRole(QPalette::Button);
}

void DrawingWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    // The window may have come to a screen of another resolution.
    surface_.fit(size(), devicePixelRatioF());
    QPainter(this).drawImage(0, 0, surface_.image());
}

void DrawingWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    surface_.fit(size(), devicePixelRatioF());
}

QPointF DrawingWindow::placeOf(const QMouseEvent& event) {
    return event.position() / kPixelsPerCentimetre;
}

bool DrawingWindow::setsCells(const QMouseEvent& event) {
    return event.buttons() == Qt::LeftButton;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The sprite editor.
#include "tools/sprite_editor_window.h"

#include "shell/workspace.h"

#include <QMouseEvent>
#include <QPushButton>

namespace kav {

namespace {

QPointF centreOf(Cell cell) {
    return {static_cast<double>(cell.x), static_cast<double>(cell.y)};
}

}  // namespace

Form2::Form2(Workspace& workspace, QWidget* owner, SpriteBitmap& sprite)
    : DrawingWindow(workspace, owner, "Form2", "Pixmoor",
                    {SpriteBitmap::kColumns + 1.0, SpriteBitmap::kRows + 1.0}),
      sprite_(sprite) {
    resize(pixelsOf(5160), pixelsOf(5775));
    const auto button = [this](const char* name, const char* caption, const TwipsRect& at, auto handler) {
        connect(place<QPushButton>(name, caption, at), &QPushButton::clicked, this, handler);
    };
    button("Command1", "Insert At Cursor", {0, 4560, 1695, 735}, &Form2::Command1_Click);
    button("Command2", "Copy to Clipboard", {1680, 4560, 1695, 735}, &Form2::Command2_Click);
    button("Command3", "Close", {3360, 4560, 1695, 735}, &QWidget::close);
    button("Command4", "Clear", {0, 5280, 5055, 255}, &Form2::Command4_Click);
    button("Command6", "Refresh", {0, 5520, 5055, 255}, &Form2::Command6_Click);
}

// Dragging paints nothing here: only presses do.
void Form2::mousePressEvent(QMouseEvent* event) {
    const QPointF at = placeOf(*event);
    const auto cell = spriteCellAt(at.x(), at.y());
    if (!cell) return;
    const bool set = setsCells(*event);
    sprite_.setCell(*cell, set);
    if (set) {
        drawCell(*cell);
    } else {
        surface().drawErasingDisc(centreOf(*cell));
    }
    update();
}

void Form2::Command1_Click() {
    insertAtCursor(toDbText(sprite_));
}

void Form2::Command2_Click() {
    workspace().platform().clipboard.clear();
    workspace().platform().clipboard.setText(toDbText(sprite_));
}

void Form2::Command4_Click() {
    sprite_.clear();
    Command6_Click();
}

void Form2::Command6_Click() {
    redraw(sprite_, [this](Cell cell) { drawCell(cell); });
}

void Form2::drawCell(Cell cell) {
    surface().drawGradientDisc(centreOf(cell), workspace().platform().random);
}

}  // namespace kav

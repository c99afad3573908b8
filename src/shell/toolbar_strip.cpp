// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip along the top of the main window.
#include "shell/toolbar_strip.h"

#include "shell/toolbar_picture.h"
#include "shell/toolbar_regions.h"
#include "shell/workspace.h"

#include <QMouseEvent>
#include <QPainter>

namespace kav {

ToolbarStrip::ToolbarStrip(Workspace& workspace, QWidget* parent) : QWidget(parent), workspace_(workspace) {
    setObjectName("Picture1");
    // The size counts in the picture's own pixels: the desktop's scale is the toolkit's business.
    setFixedSize(kToolbarStripWidth, kToolbarStripHeight);
    setMouseTracking(true);
    // The right button presses like any other.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void ToolbarStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawToolbarPicture(painter);
}

void ToolbarStrip::mousePressEvent(QMouseEvent* event) {
    const ToolbarRegion* region = toolbarRegionAt(event->position().x());
    if (region != nullptr) emit pressed(std::string(region->command));
}

void ToolbarStrip::mouseMoveEvent(QMouseEvent* event) {
    const ToolbarRegion* region = toolbarRegionAt(event->position().x());
    if (region == nullptr) return;
    workspace_.showStatus(toolbarHelp(*region, workspace_.applicationFolder().path()));
}

}  // namespace kav

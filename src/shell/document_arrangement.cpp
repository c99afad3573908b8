// SPDX-License-Identifier: GPL-3.0-or-later
// Where document windows stand in the frame.
#include "shell/document_arrangement.h"

#include <QMdiSubWindow>

namespace kav {

namespace {

struct Windows {
    QList<QMdiSubWindow*> open;
    QList<QMdiSubWindow*> icons;
};

Windows windowsOf(const QMdiArea& area) {
    Windows windows;
    for (QMdiSubWindow* window : area.subWindowList()) {
        if (window->isHidden()) continue;
        (window->isMinimized() ? windows.icons : windows.open) << window;
    }
    return windows;
}

/// Leaves room for the icons when there are any.
QRect roomFor(const QMdiArea& area, const Windows& windows) {
    QRect room = area.viewport()->rect();
    if (!windows.icons.isEmpty()) room.setHeight(room.height() - windows.icons.first()->height());
    return room;
}

/// Rows share the height evenly, columns the width; pixels that are left over go to the last.
void tile(const QList<QMdiSubWindow*>& windows, const QRect& room, Qt::Orientation rowsOrColumns) {
    const int count = static_cast<int>(windows.size());
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        if (rowsOrColumns == Qt::Horizontal) {
            const int top = room.height() * i / count;
            windows[i]->setGeometry(0, top, room.width(), room.height() * (i + 1) / count - top);
        } else {
            const int left = room.width() * i / count;
            windows[i]->setGeometry(left, 0, room.width() * (i + 1) / count - left, room.height());
        }
    }
}

void arrangeIcons(const QList<QMdiSubWindow*>& icons, const QRect& room) {
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow* icon : icons) {
        if (left > 0 && left + icon->width() > room.width()) {
            left = 0;
            bottom -= icon->height();
        }
        icon->move(left, bottom - icon->height());
        left += icon->width();
    }
}

}  // namespace

void arrangeDocuments(QMdiArea& area, Arrangement arrangement) {
    const Windows windows = windowsOf(area);
    QMdiSubWindow* active = area.currentSubWindow();
    switch (arrangement) {
        case Arrangement::Cascade:
            area.cascadeSubWindows();
            break;
        case Arrangement::TileHorizontally:
            tile(windows.open, roomFor(area, windows), Qt::Horizontal);
            break;
        case Arrangement::TileVertically:
            tile(windows.open, roomFor(area, windows), Qt::Vertical);
            break;
        case Arrangement::ArrangeIcons:
            arrangeIcons(windows.icons, area.viewport()->rect());
            break;
    }
    if (active != nullptr) area.setActiveSubWindow(active);
}

QRect initialPlace(int number, const QSize& area) {
    constexpr int kStep = 28;
    constexpr int kStepsBeforeStartingOver = 5;
    const int offset = (number - 1) % kStepsBeforeStartingOver * kStep;
    return {offset, offset, qMax(320, area.width() * 3 / 4), qMax(200, area.height() * 3 / 4)};
}

}  // namespace kav

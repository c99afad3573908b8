// SPDX-License-Identifier: GPL-3.0-or-later
// The window that a modal dialog stands over.
#include "platform/desktop/dialog_owner.h"

#include <QApplication>
#include <QMainWindow>

namespace kav {

QWidget* dialogOwner() {
    QWidget* active = QApplication::activeWindow();
    if (active != nullptr && active->parentWidget() != nullptr) return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) return window;
    }
    return nullptr;
}

}  // namespace kav

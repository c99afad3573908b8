// SPDX-License-Identifier: GPL-3.0-or-later
// Showing a modeless window where the user sees it.
#pragma once

#include <QWidget>

namespace kav {

/// Shows the window above the others and gives it the keyboard.
inline void bringToFront(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace kav

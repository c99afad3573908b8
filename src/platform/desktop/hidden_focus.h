// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the keyboard away from windows that nobody sees.
#pragma once

class QWindow;

namespace kav {

/// Activates the window that owns `focused` if `focused` is hidden. To be called whenever a window gets the
/// keyboard: under X11, Qt 6.4 takes the echo of its own request to activate a window for the answer, even
/// when the window was hidden in the meantime, and keys would go nowhere from then on.
void passFocusOnFromHidden(QWindow* focused);

}  // namespace kav

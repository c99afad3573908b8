// SPDX-License-Identifier: GPL-3.0-or-later
// The window that a modal dialog stands over.
#pragma once

class QWidget;

namespace kav {

/// The active window when it is the main window or owned by it, else the main window: a dialog never stands
/// over a console, which is nobody's and has looks of its own. Null where there is no window yet.
[[nodiscard]] QWidget* dialogOwner();

}  // namespace kav

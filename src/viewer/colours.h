// SPDX-License-Identifier: GPL-3.0-or-later
// The viewer's colours, made from those of the desktop's theme, so that they suit light and dark ones.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace kav::viewer {

/// Behind a line with an error: the theme's background with red in it.
[[nodiscard]] QColor errorBackground(const QPalette& palette);

/// Behind the line of the error that the user is at: with more red.
[[nodiscard]] QColor currentErrorBackground(const QPalette& palette);

/// Behind what a search found besides the selected place.
[[nodiscard]] QColor foundBackground(const QPalette& palette);

/// How the pages of the help look.
[[nodiscard]] QString pageStyle(const QPalette& palette);

/// The palette with a selection that looks the same in a window without the keyboard: the find bar has it
/// then.
[[nodiscard]] QPalette withLastingSelection(QPalette palette);

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// Where document windows stand in the frame.
#pragma once

#include <QMdiArea>

namespace kav {

/// The frame's arrangements, numbered as the menu's entries are.
enum class Arrangement { Cascade = 0, TileHorizontally = 1, TileVertically = 2, ArrangeIcons = 3 };

/// Arranges the windows of the area: the open ones one behind the other, in rows or in columns, or the
/// minimized ones along the lower edge.
void arrangeDocuments(QMdiArea& area, Arrangement arrangement);

/// Where the document window of that number first stands in an area of that size: one step further down and
/// to the right than the one before, starting over after a few.
[[nodiscard]] QRect initialPlace(int number, const QSize& area);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip's picture.
#pragma once

class QPainter;

namespace kav {

/// The picture's height in its own pixels; kToolbarStripWidth is its width.
inline constexpr int kToolbarStripHeight = 20;

/// Draws the 17 images, each within its region. Drawn in lines and areas, so it is clear at every scale.
void drawToolbarPicture(QPainter& painter);

}  // namespace kav

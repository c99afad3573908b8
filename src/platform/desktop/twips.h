// SPDX-License-Identifier: GPL-3.0-or-later
// Twips and centimetres, in which tool windows are laid out, as the toolkit's logical pixels.
#pragma once

#include <QRect>

namespace kav {

/// A twip is 1/1440 inch. A logical pixel is 1/96 inch; the toolkit scales it to the screen's resolution.
inline constexpr int kTwipsPerPixel = 15;
inline constexpr double kPixelsPerCentimetre = 1440 / 2.54 / kTwipsPerPixel;

/// The nearest whole number of logical pixels; `twips` is not negative.
[[nodiscard]] constexpr int pixelsOf(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

/// Where a control stands in its window, in twips.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] constexpr QRect toPixels() const {
        return {pixelsOf(left), pixelsOf(top), pixelsOf(width), pixelsOf(height)};
    }
};

}  // namespace kav

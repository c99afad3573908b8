// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as numbers, and how well one can be read on another.
#pragma once

#include <cstdint>

namespace kav {

/// A 24-bit colour with red in the low byte and blue in the high byte.
using Colour = std::uint32_t;

/// The colour of that much red, green and blue, 0 to 255 each.
constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xFFU) | (green & 0xFFU) << 8U | (blue & 0xFFU) << 16U;
}

inline constexpr Colour kBlack = rgb(0, 0, 0);
inline constexpr Colour kWhite = rgb(255, 255, 255);

/// Contrast that small text needs to be read (WCAG 2.1, success criterion 1.4.3).
inline constexpr double kReadableContrast = 4.5;

/// Relative luminance from 0, black, to 1, white (WCAG 2.1).
[[nodiscard]] double luminanceOf(Colour colour);

/// Contrast ratio of two colours, from 1 to 21, in either order (WCAG 2.1).
[[nodiscard]] double contrastOf(Colour one, Colour other);

/// `share` percent of `other` mixed into `colour`.
[[nodiscard]] Colour mixed(Colour colour, Colour other, unsigned share);

}  // namespace kav

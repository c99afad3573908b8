// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip: one picture that is divided into regions by x alone.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kav {

/// The width of the strip's picture that is divided into regions, in its own pixels.
inline constexpr int kToolbarStripWidth = 318;

/// A region runs from `left` up to but not including `right`, in the picture's own pixels.
struct ToolbarRegion {
    int left = 0;
    int right = 0;
    std::string_view command;  ///< the menu entry that a press runs
    std::string_view help;     ///< what a move shows; toolbarHelp completes it
};

/// All regions from left to right.
[[nodiscard]] std::span<const ToolbarRegion> toolbarRegions();

/// The first region whose right bound lies beyond x, or null at 318 and more.
[[nodiscard]] const ToolbarRegion* toolbarRegionAt(double x);

/// The region's help text, in which the application folder and the maker's addresses stand where they belong.
[[nodiscard]] std::string toolbarHelp(const ToolbarRegion& region, std::string_view applicationFolder);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The discs that painted cells are drawn as: rings of colour from the outside in.
#pragma once

#include <cstdint>

namespace kav {

/// A 24-bit colour: red in the low byte, green in the middle, blue in the high byte.
using Colour = std::uint32_t;

[[nodiscard]] constexpr int redOf(Colour colour) {
    return static_cast<int>(colour & 0xFFU);
}
[[nodiscard]] constexpr int greenOf(Colour colour) {
    return static_cast<int>((colour >> 8U) & 0xFFU);
}
[[nodiscard]] constexpr int blueOf(Colour colour) {
    return static_cast<int>((colour >> 16U) & 0xFFU);
}

/// The rings of a gradient or erasing disc, numbered from 1 (the widest).
inline constexpr int kDiscRings = 450;

/// The radius of a ring in centimetres: 0.499 for ring 1 down to 0.050 for ring 450.
[[nodiscard]] constexpr double ringRadius(int ring) {
    return 0.5 - 0.001 * ring;
}

/// The one ring of a disc in the flat style.
inline constexpr double kFlatRadius = 0.5;
inline constexpr Colour kFlatColour = 778899;

/// The colours of one gradient disc: ring k has the colour k * step + base.
struct DiscGradient {
    Colour base = 0;
    Colour step = 10;

    [[nodiscard]] constexpr Colour colourOf(int ring) const {
        return static_cast<Colour>(ring) * step + base;
    }
    bool operator==(const DiscGradient&) const = default;
};

/// The gradient that two random numbers from [0, 1) give: base below 778899, step from 10 to 49.
[[nodiscard]] DiscGradient discGradient(double random1, double random2);

}  // namespace kav

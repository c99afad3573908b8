// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as numbers, and how well one can be read on another.
#include "documents/aids/colour.h"

#include <algorithm>
#include <cmath>

namespace kav {

namespace {

constexpr unsigned kGreenShift = 8;
constexpr unsigned kBlueShift = 16;

unsigned channel(Colour colour, unsigned shift) {
    return colour >> shift & 0xFFU;
}

/// A channel's share of light, with the screen's gamma taken out.
double linear(unsigned channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

}  // namespace

double luminanceOf(Colour colour) {
    return 0.2126 * linear(channel(colour, 0)) + 0.7152 * linear(channel(colour, kGreenShift)) +
           0.0722 * linear(channel(colour, kBlueShift));
}

double contrastOf(Colour one, Colour other) {
    const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

Colour mixed(Colour colour, Colour other, unsigned share) {
    const auto mix = [&](unsigned shift) {
        return (channel(colour, shift) * (100 - share) + channel(other, shift) * share + 50) / 100;
    };
    return rgb(mix(0), mix(kGreenShift), mix(kBlueShift));
}

}  // namespace kav

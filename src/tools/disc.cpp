// SPDX-License-Identifier: GPL-3.0-or-later
// The random gradient of a disc.
#include "tools/disc.h"

namespace kav {

DiscGradient discGradient(double random1, double random2) {
    constexpr double kBases = 778899;
    constexpr double kSteps = 40;
    constexpr Colour kSmallestStep = 10;
    return {static_cast<Colour>(random1 * kBases), static_cast<Colour>(random2 * kSteps) + kSmallestStep};
}

}  // namespace kav

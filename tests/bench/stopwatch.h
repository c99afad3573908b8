// SPDX-License-Identifier: GPL-3.0-or-later
// How long actions take.
#pragma once

#include <algorithm>
#include <chrono>
#include <limits>

namespace kav::bench {

/// Seconds that the action takes.
template <typename Action>
double secondsOf(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The shortest time that the action takes in so many rounds: what others do on the machine only adds.
template <typename Action>
double leastSecondsOf(int rounds, Action action) {
    double least = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round)
        least = std::min(least, secondsOf(action));
    return least;
}

}  // namespace kav::bench

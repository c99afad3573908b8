// SPDX-License-Identifier: GPL-3.0-or-later
// When a changed document's copy is written.
#pragma once

#include <algorithm>
#include <chrono>

namespace kav {

/// How long the keys rest before a copy is written.
inline constexpr std::chrono::milliseconds kTypingPause{3000};

/// How old a change gets without a copy, for those who never pause.
inline constexpr std::chrono::milliseconds kOldestUnwritten{30000};

/// The time from a change to the writing of the copy, when the oldest change that is in no copy was made
/// `sinceOldest` before it. A further change before then asks anew.
[[nodiscard]] constexpr std::chrono::milliseconds copyDelay(std::chrono::milliseconds sinceOldest) {
    return std::clamp(kOldestUnwritten - sinceOldest, std::chrono::milliseconds::zero(), kTypingPause);
}

}  // namespace kav

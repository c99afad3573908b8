// SPDX-License-Identifier: GPL-3.0-or-later
// The margins beside a text, from left to right.
#pragma once

#include <cstdint>

namespace kav {

inline constexpr std::uintptr_t kLineNumberMargin = 0;
inline constexpr std::uintptr_t kErrorMargin = 1;

}  // namespace kav

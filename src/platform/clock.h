// SPDX-License-Identifier: GPL-3.0-or-later
// The wall clock.
#pragma once

#include "runtime/local_time.h"

namespace kav {

class Clock {
  public:
    virtual ~Clock() = default;

    /// The current local date and time.
    [[nodiscard]] virtual LocalTime now() = 0;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Chance.
#pragma once

namespace kav {

class RandomNumbers {
  public:
    virtual ~RandomNumbers() = default;

    /// A uniform random number, 0 included and 1 not.
    [[nodiscard]] virtual double next() = 0;
};

}  // namespace kav

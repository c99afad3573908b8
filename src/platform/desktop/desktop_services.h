// SPDX-License-Identifier: GPL-3.0-or-later
// The small services that the toolkit and the standard library give alike on every system.
#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/random_numbers.h"

#include <random>

namespace kav {

/// The desktop's clipboard.
class DesktopClipboard : public Clipboard {
  public:
    void clear() override;
    void setText(const std::string& text) override;
    std::string text() override;
};

/// The system's clock in its local time zone.
class SystemClock : public Clock {
  public:
    LocalTime now() override;
};

/// A generator seeded afresh at each start.
class SeededRandomNumbers : public RandomNumbers {
  public:
    double next() override { return distribution_(generator_); }

  private:
    std::mt19937 generator_{std::random_device{}()};
    std::uniform_real_distribution<double> distribution_{0.0, 1.0};
};

}  // namespace kav

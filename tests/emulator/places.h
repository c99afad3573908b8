// SPDX-License-Identifier: GPL-3.0-or-later
// Where the two calculators keep what the emulator reads and writes.
#pragma once

#include "emulator/emulator.h"

namespace kav::test {

struct Emulator::Places {
    std::uint16_t programStart;
    std::uint16_t cursorRow;
    std::uint16_t cursorColumn;
    std::uint16_t penColumn;
    std::uint16_t penRow;
    std::uint16_t graphBuffer;
    std::uint16_t flags;
};

}  // namespace kav::test

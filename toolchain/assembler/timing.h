// SPDX-License-Identifier: GPL-3.0-or-later
// How long the processor takes for an instruction.
#pragma once

#include <cstdint>
#include <span>

namespace kav::assembler {

/// A time in T-states, the periods of the processor's clock.
struct Time {
    std::uint64_t longest = 0;   ///< when conditional jumps are taken and repeating instructions repeat
    std::uint64_t shortest = 0;  ///< when they are not

    bool operator==(const Time&) const = default;

    Time& operator+=(const Time& other) {
        longest += other.longest;
        shortest += other.shortest;
        return *this;
    }
};

/// The documented time of the instruction that begins with these bytes, its prefixes included, or none for
/// an empty span. Bytes behind the opcode play no part and may be missing.
[[nodiscard]] Time timeOf(std::span<const std::uint8_t> instruction);

}  // namespace kav::assembler

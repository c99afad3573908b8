// SPDX-License-Identifier: GPL-3.0-or-later
// Known words found by a number that they are packed into, without comparing texts.
#pragma once

#include "runtime/ascii_case.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kav::assembler {

/// The word's letters in lower case packed into a number: one a byte for up to eight letters, a hash of
/// them for more. 0 for an empty word alone.
[[nodiscard]] constexpr std::uint64_t wordKey(std::string_view word) {
    std::uint64_t key = 0;
    if (word.size() <= 8) {
        for (const char c : word)
            key = key << 8 | static_cast<unsigned char>(lowered(c));
        return key;
    }
    for (const char c : word)
        key = (key ^ static_cast<unsigned char>(lowered(c))) * 0x100000001B3U;
    return key | std::uint64_t{1} << 63;  // no letter of a packed word has its highest bit set
}

/// Finds the position of a word in a list of at most 127 different words.
class WordIndex {
  public:
    static constexpr std::size_t kNone = 0xFF;

    /// Notes that the word with this key stands at `position` in its list.
    constexpr void add(std::uint64_t key, std::size_t position) {
        std::size_t slot = slotOf(key);
        while (keys_[slot] != 0)
            slot = (slot + 1) % kSlots;
        keys_[slot] = key;
        positions_[slot] = static_cast<std::uint8_t>(position);
    }

    /// The word's position, or kNone.
    [[nodiscard]] constexpr std::size_t find(std::string_view word) const {
        const std::uint64_t key = wordKey(word);
        if (key == 0) return kNone;
        for (std::size_t slot = slotOf(key); keys_[slot] != 0; slot = (slot + 1) % kSlots) {
            if (keys_[slot] == key) return positions_[slot];
        }
        return kNone;
    }

  private:
    static constexpr std::size_t kSlots = 256;

    static constexpr std::size_t slotOf(std::uint64_t key) {
        return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15U) >> 56U);
    }

    std::array<std::uint64_t, kSlots> keys_{};
    std::array<std::uint8_t, kSlots> positions_{};
};

}  // namespace kav::assembler

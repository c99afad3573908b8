// SPDX-License-Identifier: GPL-3.0-or-later
// What the edit commands do to a text and its selection.
#pragma once

#include <cstddef>
#include <string_view>

namespace kav {

/// A selection in a text, in bytes; `start` counts from 0.
struct Selection {
    std::size_t start = 0;
    std::size_t length = 0;
    bool operator==(const Selection&) const = default;
};

/// All of a text.
[[nodiscard]] constexpr Selection wholeText(std::string_view text) {
    return {0, text.size()};
}

/// What Delete removes: the selection, or one character (code point) behind the cursor when nothing is
/// selected. Where that is exactly one CR, the character behind it goes too, so that a line end is removed as
/// a pair.
[[nodiscard]] Selection deletedSelection(std::string_view text, Selection selection);

}  // namespace kav

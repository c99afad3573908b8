// SPDX-License-Identifier: GPL-3.0-or-later
// Which parenthesis of a line belongs to which.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kav {

/// A parenthesis; places are byte offsets in its line.
struct Parenthesis {
    std::size_t place = 0;
    std::optional<std::size_t> partner;  ///< the one that it opens or closes; none for a lone one

    bool operator==(const Parenthesis&) const = default;
};

/// The parenthesis in front of the caret or, where there is none, the one behind it. Those in comments and
/// in quotes are none, and no pair reaches from one statement into the next. The line comes without its end.
[[nodiscard]] std::optional<Parenthesis> parenthesisBeside(std::string_view line, std::size_t caret);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Searching a text and replacing every match in it.
#pragma once

#include "documents/edit_operations.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// How characters are compared: as they are, or letters without regard to case.
enum class Comparison { exact, text };

/// What the box "Case Sensitive" means to Find.
[[nodiscard]] constexpr Comparison findComparison(bool caseSensitive) {
    return caseSensitive ? Comparison::exact : Comparison::text;
}

/// What the box "Case Sensitive" means to Replace All: the opposite of what it means to Find, on purpose.
[[nodiscard]] constexpr Comparison replaceAllComparison(bool caseSensitive) {
    return caseSensitive ? Comparison::text : Comparison::exact;
}

/// The search position that a field holds, rounded to a whole number. Raises failure 13 when the field holds
/// no number, 5 for a number below 1.
[[nodiscard]] std::size_t searchPositionOf(std::string_view field);

/// A place in a text where the wanted text stands. The length can differ from the wanted text's: letters that
/// differ in case alone may take different numbers of bytes.
struct Match {
    std::size_t position = 1;  ///< in bytes, counted from 1
    std::size_t length = 0;    ///< in bytes

    [[nodiscard]] Selection selection() const { return {position - 1, length}; }
    /// Where the next search starts: one further, not behind the match, so that overlapping matches are
    /// found.
    [[nodiscard]] std::size_t nextSearchPosition() const { return position + 1; }
    bool operator==(const Match&) const = default;
};

/// The first match at or behind the position (in bytes, from 1). An empty wanted text matches at the position
/// itself as long as that is not beyond the text's last character. A match never begins within a character.
[[nodiscard]] std::optional<Match> findMatch(std::string_view text, std::string_view wanted,
                                             std::size_t position, Comparison comparison);

/// The outcome of Replace All.
struct Replacements {
    std::string text;                ///< the document's new text
    std::vector<Selection> edits;    ///< what was replaced, in order, each in the text as it was by then
    std::size_t searchPosition = 1;  ///< where the next search starts
};

/// Replaces at every match from the position on. All matches are found in the text as it is, and each is
/// replaced at that same character position of the text as it has become: a replacement longer or shorter
/// than the wanted text shifts all that follow, which is intended. These positions count characters (code
/// points), so that no shift cuts one in two. Takes time in proportion to the text and its replacements.
[[nodiscard]] Replacements replaceAll(std::string_view text, std::string_view wanted,
                                      std::string_view replacement, std::size_t position,
                                      Comparison comparison);

/// The message for a search without a match.
[[nodiscard]] std::string notFoundTitle(std::string_view wanted);
[[nodiscard]] std::string notFoundText(std::string_view wanted);

}  // namespace kav

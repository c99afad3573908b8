// SPDX-License-Identifier: GPL-3.0-or-later
// All matches of a wanted text, overlapping ones included, in one scan.
#pragma once

#include "documents/find_replace.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace kav {

/// Hands out the matches from a place in the text on, one after the other. No character of the text is looked
/// at twice, whatever the texts are (the search of Knuth, Morris and Pratt, over code points).
class MatchScanner {
  public:
    /// A match: where it begins and ends in bytes, and how many characters stand between the scan's start and
    /// it.
    struct Found {
        std::size_t begin = 0;
        std::size_t end = 0;
        std::size_t charactersBefore = 0;
    };

    /// `start` is a byte offset where a character begins. The texts must outlive the scanner.
    MatchScanner(std::string_view text, std::string_view wanted, std::size_t start, Comparison comparison);

    std::optional<Found> next();

  private:
    [[nodiscard]] char32_t comparable(char32_t codePoint) const;
    [[nodiscard]] std::size_t continued(std::size_t matched, char32_t codePoint) const;

    std::string_view text_;
    Comparison comparison_;
    std::vector<char32_t> wanted_;
    /// For each count of matched characters, the longest shorter count that is a match as well.
    std::vector<std::size_t> shorter_;
    /// The offsets of the last characters read, as many as a match has, in turn.
    std::vector<std::size_t> recentOffsets_;
    std::size_t matched_ = 0;
    std::size_t offset_;
    std::size_t charactersRead_ = 0;
};

}  // namespace kav

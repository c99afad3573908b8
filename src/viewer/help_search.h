// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the pages of the help that have the words a user looks for.
#pragma once

#include "viewer/help_book.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kav::viewer {

/// A page that has all the words.
struct SearchHit {
    std::size_t page = 0;
    std::string found;    ///< what to mark on the page: the phrase when it stands there, else the first word
    std::string excerpt;  ///< the words around the first place of `found`
};

/// The pages that have every word of `words`, without regard to case, anywhere in their text. Pages with the
/// phrase in their title come first, then pages with the phrase, then the rest; within these, pages in which
/// it stands more often. No words, no pages.
[[nodiscard]] std::vector<SearchHit> searchBook(const HelpBook& book, std::string_view words);

}  // namespace kav::viewer

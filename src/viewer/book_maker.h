// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the help file out of its pages and pictures, and refuses what would not work in it.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace kav::viewer {

/// What a help file is made of, by file name: "index.html", and "sprite.png" for what pages call
/// "pictures/sprite.png".
struct BookParts {
    std::map<std::string, std::string> pages;
    std::map<std::string, std::string> pictures;
};

/// The help file, or why there is none.
struct MadeBook {
    std::string html;
    std::vector<std::string> problems;  ///< "keys.html line 12: there is no page menu.html"
};

/// Puts the pages into one document, a section for each: the index first, the others in the order in which
/// the index links to them. Links between pages become links within the document, pictures become part of it.
/// A link or picture that leads nowhere, a page or picture that nothing leads to, a place that two pages call
/// by the same name, and tags that the viewer does not show are problems.
[[nodiscard]] MadeBook makeBook(const BookParts& parts);

}  // namespace kav::viewer

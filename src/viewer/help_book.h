// SPDX-License-Identifier: GPL-3.0-or-later
// The help file as pages: one HTML document with a section for each page.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav::viewer {

/// One page of the help.
struct HelpPage {
    std::string name;                  ///< how links call it
    std::string title;                 ///< its first heading
    std::string html;                  ///< what is shown
    std::string text;                  ///< what is searched: the words alone
    std::vector<std::string> anchors;  ///< the places within it that links lead to
};

/// One line of the contents list: a page, or a heading over the pages that follow.
struct ContentsEntry {
    std::string title;
    std::optional<std::size_t> page;  ///< index of the page; nothing for a heading
};

/// Where a link leads: a page, and a place within it that is empty for its top.
struct HelpPlace {
    std::size_t page = 0;
    std::string anchor;
};

/// The pages of a help file. The first page is the contents: its second-level headings and the links to other
/// pages below them are the contents list, in that order.
class HelpBook {
  public:
    /// True for a text that is a help file rather than plain text.
    [[nodiscard]] static bool isBook(std::string_view text);

    /// Reads the file's text. A text without sections is a book without pages.
    explicit HelpBook(std::string_view html);

    [[nodiscard]] const std::vector<HelpPage>& pages() const { return pages_; }
    [[nodiscard]] const std::vector<ContentsEntry>& contents() const { return contents_; }

    /// The place that a link `#anchor` leads to; nothing when no page has it.
    [[nodiscard]] std::optional<HelpPlace> placeOf(std::string_view anchor) const;

  private:
    void readPages(std::string_view html);
    void readContents();

    std::vector<HelpPage> pages_;
    std::vector<ContentsEntry> contents_;
};

}  // namespace kav::viewer

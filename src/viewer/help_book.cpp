// SPDX-License-Identifier: GPL-3.0-or-later
// The help file as pages: one HTML document with a section for each page.
#include "viewer/help_book.h"

#include "viewer/html_scanner.h"

#include <algorithm>

namespace kav::viewer {

namespace {

HelpPage pageOf(std::string_view name, std::string_view html) {
    HelpPage page;
    page.name = name;
    page.html = html;
    page.text = runningText(html);
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        if (tag->closes) continue;
        if (page.title.empty() && tag->name == "h1") page.title = runningText(contentOf(html, *tag));
        if (const auto id = attributeOf(*tag, "id")) page.anchors.emplace_back(*id);
    }
    return page;
}

}  // namespace

bool HelpBook::isBook(std::string_view text) {
    return text.starts_with("<!DOCTYPE html>");
}

HelpBook::HelpBook(std::string_view html) {
    readPages(html);
    readContents();
}

void HelpBook::readPages(std::string_view html) {
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        const auto name = attributeOf(*tag, "id");
        if (tag->name != "section" || tag->closes || !name) continue;
        pages_.push_back(pageOf(*name, contentOf(html, *tag)));
    }
}

void HelpBook::readContents() {
    if (pages_.empty()) return;
    const std::string_view html = pages_.front().html;
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        if (tag->closes) continue;
        if (tag->name == "h2") contents_.push_back({runningText(contentOf(html, *tag)), std::nullopt});
        const auto target = tag->name == "a" ? attributeOf(*tag, "href") : std::nullopt;
        if (!target || !target->starts_with('#') || contents_.empty()) continue;
        const auto place = placeOf(target->substr(1));
        if (place && place->page > 0 && place->anchor.empty()) {
            contents_.push_back({pages_[place->page].title, place->page});
        }
    }
}

std::optional<HelpPlace> HelpBook::placeOf(std::string_view anchor) const {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        const HelpPage& page = pages_[i];
        if (page.name == anchor) return HelpPlace{i, {}};
        if (std::find(page.anchors.begin(), page.anchors.end(), anchor) != page.anchors.end()) {
            return HelpPlace{i, std::string(anchor)};
        }
    }
    return std::nullopt;
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the help file out of its pages and pictures, and refuses what would not work in it.
#include "viewer/book_maker.h"

#include "viewer/base64.h"
#include "viewer/html_scanner.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>

namespace kav::viewer {

namespace {

constexpr std::string_view kIndex = "index.html";
constexpr std::string_view kExtension = ".html";
constexpr std::string_view kPictureFolder = "pictures/";

constexpr std::array<std::string_view, 24> kKnownTags{
    "a",  "b",  "br", "code", "dd",  "dl",  "dt",     "em",    "h1", "h2", "h3", "i",
    "li", "ol", "p",  "pre",  "img", "kbd", "strong", "table", "td", "th", "tr", "ul"};
constexpr std::array<std::string_view, 2> kTagsWithoutEnd{"br", "img"};

template <typename Names>
bool contains(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string_view withoutExtension(std::string_view fileName) {
    return fileName.substr(0, fileName.rfind(kExtension));
}

/// Goes through the pages and writes them into one document.
class BookMaker {
  public:
    explicit BookMaker(const BookParts& parts) : parts_(parts) {}

    MadeBook make();

  private:
    void collectPlaces(const std::string& fileName, const std::string& html);
    void orderPages();
    void checkShape(const std::string& fileName, const std::string& html);
    [[nodiscard]] std::string withTargets(const std::string& html);
    [[nodiscard]] std::optional<std::string> targetOf(const Tag& tag);
    [[nodiscard]] std::string linkTarget(std::string_view written);
    [[nodiscard]] std::string pictureTarget(std::string_view written);
    void checkUse();
    void problem(const std::string& text);

    const BookParts& parts_;
    MadeBook made_;
    std::map<std::string, std::string, std::less<>> places_;  // each anchor and the page that has it
    std::vector<std::string> order_;
    std::set<std::string, std::less<>> usedPictures_;
    const std::string* page_ = nullptr;  // the file name of the page being read
    const std::string* html_ = nullptr;  // its text
    std::size_t at_ = 0;                 // where a problem would be
};

void BookMaker::problem(const std::string& text) {
    const auto end = html_->begin() + static_cast<std::ptrdiff_t>(std::min(at_, html_->size()));
    const auto line = std::count(html_->begin(), end, '\n') + 1;
    made_.problems.push_back(*page_ + " line " + std::to_string(line) + ": " + text);
}

void BookMaker::collectPlaces(const std::string& fileName, const std::string& html) {
    places_.emplace(withoutExtension(fileName), fileName);
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        const auto id = attributeOf(*tag, "id");
        if (!id || places_.emplace(*id, fileName).second) continue;
        page_ = &fileName;
        html_ = &html;
        at_ = tag->begin;
        problem("the place " + std::string(*id) + " is also in " + places_.find(*id)->second);
    }
}

void BookMaker::orderPages() {
    const std::string& index = parts_.pages.at(std::string(kIndex));
    order_.emplace_back(kIndex);
    for (auto tag = nextTag(index, 0); tag; tag = nextTag(index, tag->end)) {
        const auto target = tag->name == "a" ? attributeOf(*tag, "href") : std::nullopt;
        if (!target) continue;
        const std::string fileName(*target);
        if (parts_.pages.contains(fileName) && !contains(order_, fileName)) order_.push_back(fileName);
    }
    for (const auto& [fileName, html] : parts_.pages) {
        if (contains(order_, fileName)) continue;
        made_.problems.push_back(fileName + ": the index does not lead to this page");
    }
}

/// One first heading, known tags that are closed in order, known characters.
void BookMaker::checkShape(const std::string& fileName, const std::string& html) {
    page_ = &fileName;
    html_ = &html;
    std::vector<std::string_view> open;
    int headings = 0;
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        at_ = tag->begin;
        const std::string name(tag->name);
        if (!contains(kKnownTags, name)) problem("the viewer does not know the tag <" + name + ">");
        if (name == "h1" && !tag->closes) ++headings;
        if (!tag->closes && !contains(kTagsWithoutEnd, name)) open.push_back(tag->name);
        if (!tag->closes) continue;
        if (open.empty() || open.back() != name) {
            problem("</" + name + "> closes nothing");
        } else {
            open.pop_back();
        }
    }
    at_ = html.size();
    if (!open.empty()) problem("<" + std::string(open.back()) + "> is not closed");
    if (headings != 1) problem("a page has one heading <h1>, not " + std::to_string(headings));
    for (const std::string& name : unknownCharacterNames(html)) {
        at_ = html.find(name);
        problem("there is no character " + name);
    }
}

std::string BookMaker::linkTarget(std::string_view written) {
    const std::size_t sign = written.find('#');
    const std::string fileName(written.substr(0, sign));
    if (!fileName.empty() && !parts_.pages.contains(fileName)) {
        problem("there is no page " + fileName);
        return {};
    }
    if (sign == std::string_view::npos) return "#" + std::string(withoutExtension(fileName));
    const std::string_view anchor = written.substr(sign + 1);
    const auto place = places_.find(anchor);
    if (place == places_.end() || place->second != (fileName.empty() ? *page_ : fileName)) {
        problem("there is no place " + std::string(anchor) + " in " + (fileName.empty() ? *page_ : fileName));
    }
    return "#" + std::string(anchor);
}

std::string BookMaker::pictureTarget(std::string_view written) {
    const bool inFolder = written.starts_with(kPictureFolder);
    const std::string fileName(inFolder ? written.substr(kPictureFolder.size()) : written);
    const auto picture = parts_.pictures.find(fileName);
    if (!inFolder || picture == parts_.pictures.end()) {
        problem("there is no picture " + std::string(written));
        return {};
    }
    if (!picture->second.starts_with("\x89PNG\r\n")) problem(fileName + " is no PNG picture");
    usedPictures_.insert(fileName);
    return "data:image/png;base64," + base64(picture->second);
}

/// What the link or picture of a tag leads to in the help file; nothing for other tags.
std::optional<std::string> BookMaker::targetOf(const Tag& tag) {
    at_ = tag.begin;
    if (tag.name == "img" && !attributeOf(tag, "alt")) problem("a picture needs words in its place (alt)");
    if (const auto link = attributeOf(tag, "href")) return linkTarget(*link);
    if (const auto picture = attributeOf(tag, "src")) return pictureTarget(*picture);
    return std::nullopt;
}

/// The page's text with the targets that links and pictures have in the help file.
std::string BookMaker::withTargets(const std::string& html) {
    std::string result;
    std::size_t copied = 0;
    for (auto tag = nextTag(html, 0); tag; tag = nextTag(html, tag->end)) {
        const std::optional<std::string> target = targetOf(*tag);
        if (!target) continue;
        const std::string_view written = *attributeOf(*tag, tag->name == "img" ? "src" : "href");
        const auto begin = static_cast<std::size_t>(written.data() - html.data());
        result.append(html, copied, begin - copied).append(*target);
        copied = begin + written.size();
    }
    return result.append(html, copied);
}

void BookMaker::checkUse() {
    for (const auto& [fileName, bytes] : parts_.pictures) {
        if (!usedPictures_.contains(fileName)) {
            made_.problems.push_back(std::string(kPictureFolder) + fileName + ": no page shows this picture");
        }
    }
}

MadeBook BookMaker::make() {
    if (!parts_.pages.contains(std::string(kIndex))) {
        return {{}, {std::string(kIndex) + ": there is no such page"}};
    }
    for (const auto& [fileName, html] : parts_.pages)
        collectPlaces(fileName, html);
    orderPages();
    made_.html =
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
        "<title>KAV Compiler Help</title></head><body>\n";
    for (const std::string& fileName : order_) {
        const std::string& html = parts_.pages.at(fileName);
        checkShape(fileName, html);
        made_.html += "<section id=\"" + std::string(withoutExtension(fileName)) + "\">\n";
        made_.html += withTargets(html) + "</section>\n";
    }
    made_.html += "</body></html>\n";
    checkUse();
    return std::move(made_);
}

}  // namespace

MadeBook makeBook(const BookParts& parts) {
    return BookMaker(parts).make();
}

}  // namespace kav::viewer

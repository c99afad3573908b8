// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the pages of the help that have the words a user looks for.
#include "viewer/help_search.h"

#include "runtime/ascii_case.h"
#include "viewer/html_scanner.h"

#include <algorithm>
#include <tuple>

namespace kav::viewer {

namespace {

constexpr std::size_t kExcerptBefore = 30;
constexpr std::size_t kExcerptLength = 100;

std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words;
    for (std::size_t at = text.find_first_not_of(' '); at != std::string::npos;) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(' ', end);
    }
    return words;
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The piece of the text around a position, whole words with dots where it was cut.
std::string excerptAround(const std::string& text, std::size_t position) {
    std::size_t begin = position > kExcerptBefore ? text.find(' ', position - kExcerptBefore) + 1 : 0;
    begin = std::min(begin, position);
    std::size_t end = std::min(begin + kExcerptLength, text.size());
    while (end < text.size() && isContinuation(text[end]))
        ++end;
    if (end < text.size()) end = std::max(text.rfind(' ', end), position);
    return (begin > 0 ? "... " : "") + text.substr(begin, end - begin) + (end < text.size() ? " ..." : "");
}

std::size_t occurrences(const std::string& text, const std::string& wanted) {
    std::size_t count = 0;
    for (std::size_t at = text.find(wanted); at != std::string::npos; at = text.find(wanted, at + 1))
        ++count;
    return count;
}

struct RankedHit {
    SearchHit hit;
    bool inTitle = false;
    bool phrase = false;
    std::size_t count = 0;
};

bool ranksBefore(const RankedHit& a, const RankedHit& b) {
    return std::tie(b.inTitle, b.phrase, b.count) < std::tie(a.inTitle, a.phrase, a.count);
}

}  // namespace

std::vector<SearchHit> searchBook(const HelpBook& book, std::string_view words) {
    const std::string phrase = lowered(runningText(words));
    const std::vector<std::string> wanted = wordsOf(phrase);
    if (wanted.empty()) return {};

    std::vector<RankedHit> ranked;
    for (std::size_t i = 0; i < book.pages().size(); ++i) {
        const HelpPage& page = book.pages()[i];
        const std::string text = lowered(page.text);
        const bool hasAll = std::all_of(wanted.begin(), wanted.end(), [&text](const std::string& word) {
            return text.find(word) != std::string::npos;
        });
        if (!hasAll) continue;
        const std::size_t count = occurrences(text, phrase);
        const std::string& found = count > 0 ? phrase : wanted.front();
        const bool inTitle = lowered(page.title).find(phrase) != std::string::npos;
        ranked.push_back({{i, found, excerptAround(page.text, text.find(found))}, inTitle, count > 0, count});
    }
    std::stable_sort(ranked.begin(), ranked.end(), ranksBefore);
    std::vector<SearchHit> hits;
    hits.reserve(ranked.size());
    for (RankedHit& one : ranked)
        hits.push_back(std::move(one.hit));
    return hits;
}

}  // namespace kav::viewer

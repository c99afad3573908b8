// SPDX-License-Identifier: GPL-3.0-or-later
// Tags, attributes and characters of the HTML that the help is written in.
#include "viewer/html_scanner.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kav::viewer {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kLongestName = 8;  // of a character, between & and ;

// The characters that HTML gives these names.
constexpr std::array<std::pair<std::string_view, std::string_view>, 10> kCharacters{{
    {"amp", "&"},
    {"lt", "<"},
    {"gt", ">"},
    {"quot", "\""},
    {"nbsp", "\xC2\xA0"},
    {"rarr", "\xE2\x86\x92"},
    {"larr", "\xE2\x86\x90"},
    {"times", "\xC3\x97"},
    {"ndash", "\xE2\x80\x93"},
    {"hellip", "\xE2\x80\xA6"},
}};

// These stand within a line of text; every other tag parts two words.
constexpr std::array<std::string_view, 9> kInlineTags{"a",    "b",   "strong", "i", "em",
                                                      "code", "kbd", "span",   "tt"};

std::size_t endOfComment(std::string_view html, std::size_t from) {
    const bool comment = html.substr(from).starts_with("<!--");
    const std::string_view mark = comment ? "-->" : ">";
    const std::size_t end = html.find(mark, from);
    return end == std::string_view::npos ? html.size() : end + mark.size();
}

/// The name between & and ; at a position of the text; empty when there is none.
std::string_view characterName(std::string_view text, std::size_t ampersand) {
    const std::size_t end = text.find(';', ampersand);
    if (end == std::string_view::npos || end - ampersand - 1 > kLongestName) return {};
    return text.substr(ampersand + 1, end - ampersand - 1);
}

std::optional<std::string_view> characterCalled(std::string_view name) {
    const auto found = std::find_if(kCharacters.begin(), kCharacters.end(),
                                    [name](const auto& character) { return character.first == name; });
    if (found == kCharacters.end()) return std::nullopt;
    return found->second;
}

void appendDecoded(std::string& result, std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view name = text[at] == '&' ? characterName(text, at) : std::string_view();
        const auto character = characterCalled(name);
        if (character) {
            result += *character;
            at += name.size() + 2;
        } else {
            result += text[at++];
        }
    }
}

bool isInline(std::string_view name) {
    return std::find(kInlineTags.begin(), kInlineTags.end(), name) != kInlineTags.end();
}

/// The text between tags; `part` stands where a tag begins something new.
std::string withoutTags(std::string_view html, std::string_view part) {
    std::string result;
    std::size_t at = 0;
    while (const auto tag = nextTag(html, at)) {
        // A comment in front of the tag is no text either.
        std::string_view between = html.substr(at, tag->begin - at);
        between = between.substr(0, between.find("<!"));
        appendDecoded(result, between);
        if (!isInline(tag->name)) result += part;
        at = tag->end;
    }
    const std::string_view rest = html.substr(at);
    appendDecoded(result, rest.substr(0, rest.find("<!")));
    return result;
}

}  // namespace

std::optional<Tag> nextTag(std::string_view html, std::size_t from) {
    std::size_t begin = html.find('<', from);
    while (begin != std::string_view::npos && html.substr(begin).starts_with("<!"))
        begin = html.find('<', endOfComment(html, begin));
    if (begin == std::string_view::npos) return std::nullopt;
    const std::size_t end = html.find('>', begin);
    if (end == std::string_view::npos) return std::nullopt;

    Tag tag;
    tag.begin = begin;
    tag.end = end + 1;
    std::string_view inside = html.substr(begin + 1, end - begin - 1);
    if (inside.ends_with('/')) inside.remove_suffix(1);
    if (inside.starts_with('/')) {
        tag.closes = true;
        inside.remove_prefix(1);
    }
    tag.name = inside.substr(0, inside.find_first_of(kBlanks));
    tag.attributes = inside.substr(tag.name.size());
    return tag;
}

std::optional<std::string_view> attributeOf(const Tag& tag, std::string_view name) {
    std::string_view rest = tag.attributes;
    while (true) {
        const std::size_t begin = rest.find_first_not_of(kBlanks);
        const std::size_t opening = rest.find("=\"");
        if (begin == std::string_view::npos || opening == std::string_view::npos) return std::nullopt;
        const std::size_t closing = rest.find('"', opening + 2);
        if (closing == std::string_view::npos) return std::nullopt;
        if (rest.substr(begin, opening - begin) == name) {
            return rest.substr(opening + 2, closing - opening - 2);
        }
        rest.remove_prefix(closing + 1);
    }
}

std::string_view contentOf(std::string_view html, const Tag& tag) {
    auto closing = nextTag(html, tag.end);
    while (closing && !(closing->closes && closing->name == tag.name))
        closing = nextTag(html, closing->end);
    return html.substr(tag.end, closing ? closing->begin - tag.end : std::string_view::npos);
}

std::string plainText(std::string_view html) {
    return withoutTags(html, "");
}

std::string runningText(std::string_view html) {
    std::string result;
    for (const char character : withoutTags(html, " ")) {
        const bool blank = kBlanks.find(character) != std::string_view::npos;
        if (!blank) {
            result += character;
        } else if (!result.empty() && result.back() != ' ') {
            result += ' ';
        }
    }
    if (result.ends_with(' ')) result.pop_back();
    return result;
}

std::vector<std::string> unknownCharacterNames(std::string_view html) {
    std::vector<std::string> unknown;
    for (std::size_t at = html.find('&'); at != std::string_view::npos; at = html.find('&', at + 1)) {
        const std::string_view name = characterName(html, at);
        if (!characterCalled(name)) unknown.push_back("&" + std::string(name) + ";");
    }
    return unknown;
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// Tags, attributes and characters of the HTML that the help is written in.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav::viewer {

/// A tag: `<name attributes>` or `</name>`. Its views point into the scanned text.
struct Tag {
    std::size_t begin = 0;  ///< where its `<` stands
    std::size_t end = 0;    ///< behind its `>`
    std::string_view name;
    std::string_view attributes;
    bool closes = false;
};

/// The first tag at or behind `from`. Comments and the document type are passed over.
[[nodiscard]] std::optional<Tag> nextTag(std::string_view html, std::size_t from);

/// The value of an attribute as it is written, `name="value"`; nothing when the tag has none.
[[nodiscard]] std::optional<std::string_view> attributeOf(const Tag& tag, std::string_view name);

/// What stands between a tag and the next closing tag of its name.
[[nodiscard]] std::string_view contentOf(std::string_view html, const Tag& tag);

/// The text without its tags, with characters in place of their names. Blanks and line breaks stay.
[[nodiscard]] std::string plainText(std::string_view html);

/// As plainText, with one blank for every run of blanks, line breaks and tags that begin a line.
[[nodiscard]] std::string runningText(std::string_view html);

/// The names of characters, such as "&rarr;", that plainText does not know.
[[nodiscard]] std::vector<std::string> unknownCharacterNames(std::string_view html);

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// What the edit commands do to a text and its selection.
#include "documents/edit_operations.h"

#include "runtime/code_points.h"

#include <algorithm>

namespace kav {

namespace {

/// The bytes of the first `count` characters behind `start`, or of those that are there.
std::size_t lengthOfCharacters(std::string_view text, std::size_t start, int count) {
    std::size_t end = start;
    for (; count > 0 && end < text.size(); --count)
        end += codePointAt(text, end).length;
    return end - start;
}

}  // namespace

Selection deletedSelection(std::string_view text, Selection selection) {
    const std::size_t start = std::min(selection.start, text.size());
    std::size_t length = std::min(selection.length, text.size() - start);
    if (length == 0) length = lengthOfCharacters(text, start, 1);
    if (text.substr(start, length) == "\r") length = lengthOfCharacters(text, start, 2);
    return {start, length};
}

}  // namespace kav

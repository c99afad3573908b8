// SPDX-License-Identifier: GPL-3.0-or-later
// Cutting a line of source into its pieces: quotes, operands, blanks around them.
#include "assembler/text.h"

#include "assembler/characters.h"
#include "runtime/ascii_case.h"

namespace kav::assembler {

namespace {

constexpr std::size_t kLongestShown = 60;

bool isOctal(char c) {
    return c >= '0' && c <= '7';
}

std::size_t behindApostrophe(std::string_view text, std::size_t position) {
    const bool followsName = position > 0 && kCharacters.isNamePart(text[position - 1]);
    if (followsName) return position + 1;
    const auto at = [&](std::size_t offset) {
        return position + offset < text.size() ? text[position + offset] : '\0';
    };
    if (at(1) == '\\' && at(3) == '\'') return position + 4;
    if (at(2) == '\'') return position + 3;
    return position + 1;
}

}  // namespace

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lowered(a[i]) != lowered(b[i])) return false;
    }
    return true;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && kCharacters.isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && kCharacters.isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::size_t behindQuoted(std::string_view text, std::size_t position) {
    if (text[position] == '\'') return behindApostrophe(text, position);
    for (++position; position < text.size(); ++position) {
        if (text[position] == '"') return position + 1;
        if (text[position] == '\\') ++position;
    }
    return std::string_view::npos;
}

bool ListReader::next(std::string_view& part) {
    if (!more_) return false;
    std::size_t end = 0;
    int depth = 0;
    while (end < rest_.size()) {
        const char c = rest_[end];
        if (c == ',' && depth <= 0) break;
        if (c == '"' || c == '\'') {
            end = behindQuoted(rest_, end);
            continue;
        }
        if (c == '(') ++depth;
        if (c == ')') --depth;
        ++end;
    }
    if (end >= rest_.size()) {
        more_ = false;
        end = rest_.size();
    }
    part = trimmed(rest_.substr(0, end));
    if (more_) rest_.remove_prefix(end + 1);
    return true;
}

std::uint8_t escapedCharacter(std::string_view text, std::size_t& position) {
    ++position;
    if (position >= text.size()) return '\\';
    if (isOctal(text[position])) {
        unsigned value = 0;
        for (int digits = 0; digits < 3 && position < text.size() && isOctal(text[position]); ++digits) {
            value = value * 8 + static_cast<unsigned>(text[position++] - '0');
        }
        return static_cast<std::uint8_t>(value);
    }
    const char c = text[position++];
    switch (c) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 'b':
            return '\b';
        case 't':
            return '\t';
        case 'f':
            return '\f';
        default:
            return static_cast<std::uint8_t>(c);
    }
}

std::string shown(std::string_view text) {
    std::string result(trimmed(text).substr(0, kLongestShown));
    // A cut never leaves half of a UTF-8 sequence behind.
    if (result.size() == kLongestShown) {
        std::size_t last = result.size();
        while (last > 0 && (static_cast<unsigned char>(result[last - 1]) & 0xC0) == 0x80)
            --last;
        if (last > 0 && static_cast<unsigned char>(result[last - 1]) >= 0xC0) result.resize(last - 1);
        result += "...";
    }
    for (char& c : result) {
        if (c == '\t') c = ' ';
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
    }
    return result;
}

std::string shownOrNone(std::string_view text) {
    return text.empty() ? "none" : shown(text);
}

std::string shownName(std::string_view name) {
    return "(" + shown(name) + ")";
}

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text: the program's line end, and reading a text line by line.
#include "runtime/lines.h"

namespace kav {

namespace {

/// Length in bytes of the UTF-8 sequence that `text` begins with; 1 where there is no whole one.
std::size_t sequenceLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = 1;
    if (lead >= 0xC2 && lead <= 0xDF) length = 2;
    if (lead >= 0xE0 && lead <= 0xEF) length = 3;
    if (lead >= 0xF0 && lead <= 0xF4) length = 4;
    if (length > text.size()) return 1;
    for (std::size_t i = 1; i < length; ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) return 1;
    }
    return length;
}

}  // namespace

std::optional<std::string_view> LineReader::next() {
    if (rest_.empty()) return std::nullopt;
    const std::size_t end = rest_.find_first_of("\r\n");
    const std::string_view line = rest_.substr(0, end);
    if (end == std::string_view::npos) {
        rest_ = {};
    } else {
        rest_.remove_prefix(end + (rest_.substr(end).starts_with(kCrLf) ? 2 : 1));
    }
    return line;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    LineReader reader(text);
    while (const auto line = reader.next())
        lines.push_back(*line);
    return lines;
}

std::string joinedLines(const std::vector<std::string_view>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) text += kCrLf;
        text += lines[i];
    }
    return text;
}

std::string firstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += sequenceLength(text.substr(end));
    return std::string(text.substr(0, end));
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(sequenceLength(text));
    return count;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text: the program's line end, and reading a text line by line.
#include "runtime/lines.h"

namespace kav {

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

}  // namespace kav

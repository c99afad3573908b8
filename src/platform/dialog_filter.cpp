// SPDX-License-Identifier: GPL-3.0-or-later
// The filter text of a file dialog, taken apart.
#include "platform/dialog_filter.h"

namespace kav {

namespace {

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string> patternsOf(std::string_view text) {
    std::vector<std::string> patterns = split(text, ';');
    std::erase(patterns, std::string());
    return patterns;
}

}  // namespace

std::vector<DialogFilter> parseFilter(std::string_view filter) {
    if (filter.empty()) return {};
    const std::vector<std::string> parts = split(filter, '|');
    std::vector<DialogFilter> filters;
    for (std::size_t i = 0; i < parts.size(); i += 2) {
        const std::string& patterns = i + 1 < parts.size() ? parts[i + 1] : std::string("*.*");
        filters.push_back({parts[i], patternsOf(patterns)});
    }
    return filters;
}

}  // namespace kav

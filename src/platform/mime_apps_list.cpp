// SPDX-License-Identifier: GPL-3.0-or-later
// Edits the list of default programs line by line, so that what others wrote stays as it is.
#include "platform/mime_apps_list.h"

#include <algorithm>
#include <vector>

namespace kav {

namespace {

constexpr std::string_view kDefaultsGroup = "[Default Applications]";

using Lines = std::vector<std::string>;

/// The lines without their line ends; the last is empty when the text ends with one.
Lines linesIn(std::string_view text) {
    Lines lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    lines.emplace_back(text);
    return lines;
}

std::string textOf(const Lines& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.append(i == 0 ? "" : "\n").append(lines[i]);
    return text;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

/// The lines of the group of defaults: from behind its header to the next header or the end.
struct Group {
    Lines::iterator header;
    Lines::iterator end;
};

Group defaultsIn(Lines& lines) {
    const auto header = std::find_if(lines.begin(), lines.end(),
                                     [](const std::string& line) { return trimmed(line) == kDefaultsGroup; });
    if (header == lines.end()) return {header, header};
    const auto end = std::find_if(header + 1, lines.end(),
                                  [](const std::string& line) { return trimmed(line).starts_with('['); });
    return {header, end};
}

Lines::iterator lineOf(const Group& group, std::string_view type) {
    return std::find_if(group.header + 1, group.end, [&](const std::string& line) {
        const std::size_t equals = line.find('=');
        return equals != std::string::npos && trimmed(std::string_view(line).substr(0, equals)) == type;
    });
}

/// The programs that a line names, without `entry`, each with its semicolon.
std::string othersIn(std::string_view line, std::string_view entry) {
    std::string others;
    line.remove_prefix(line.find('=') + 1);
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(';'), line.size());
        const std::string_view name = trimmed(line.substr(0, end));
        if (!name.empty() && name != entry) others.append(name).append(";");
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return others;
}

bool isBlank(const std::string& line) {
    return trimmed(line).empty();
}

/// Removes the group's header when nothing is left below it, and the blank line that parted it.
void removeIfEmpty(Lines& lines) {
    Group group = defaultsIn(lines);
    if (!std::all_of(group.header + 1, group.end, isBlank)) return;
    const bool parted = group.header != lines.begin() && isBlank(*(group.header - 1));
    lines.erase(parted ? group.header - 1 : group.header, group.header + 1);
}

}  // namespace

std::string withDefaultApplication(std::string_view list, std::string_view type, std::string_view entry) {
    Lines lines = linesIn(list);
    const std::string wanted = std::string(type) + "=" + std::string(entry) + ";";
    Group group = defaultsIn(lines);
    if (group.header == lines.end()) {
        std::string text(list);
        if (!text.empty()) text += text.ends_with('\n') ? "\n" : "\n\n";
        return text.append(kDefaultsGroup).append("\n").append(wanted).append("\n");
    }
    const auto line = lineOf(group, type);
    if (line != group.end) {
        *line = wanted + othersIn(*line, entry);
        return textOf(lines);
    }
    // Behind the group's last line, before the blank ones that part it from the next.
    auto place = group.end;
    while (isBlank(*(place - 1)))
        --place;
    lines.insert(place, wanted);
    if (!isBlank(lines.back())) lines.emplace_back();
    return textOf(lines);
}

std::string withoutDefaultApplication(std::string_view list, std::string_view type, std::string_view entry) {
    Lines lines = linesIn(list);
    const Group group = defaultsIn(lines);
    if (group.header == lines.end()) return std::string(list);
    const auto line = lineOf(group, type);
    if (line == group.end) return std::string(list);
    const std::string others = othersIn(*line, entry);
    if (others == othersIn(*line, "")) return std::string(list);  // other programs' choice
    if (!others.empty()) {
        *line = std::string(type) + "=" + others;
        return textOf(lines);
    }
    lines.erase(line);
    removeIfEmpty(lines);
    return textOf(lines);
}

}  // namespace kav

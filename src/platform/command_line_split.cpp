// SPDX-License-Identifier: GPL-3.0-or-later
// A command line taken apart into a program and its arguments, without a shell.
#include "platform/command_line_split.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view withoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text;
}

/// One argument, taken from the front of `rest`. Backslashes count in pairs before a quote only: an odd one
/// makes the quote a letter. Two quotes inside quotes are a quote that is a letter, too.
std::string takeArgument(std::string_view& rest) {
    std::string argument;
    bool quoted = false;
    while (!rest.empty() && (quoted || kBlanks.find(rest.front()) == std::string_view::npos)) {
        const std::size_t backslashes = std::min(rest.find_first_not_of('\\'), rest.size());
        const bool beforeQuote = backslashes < rest.size() && rest[backslashes] == '"';
        argument.append(beforeQuote ? backslashes / 2 : backslashes, '\\');
        rest.remove_prefix(backslashes);
        if (!beforeQuote) {
            if (backslashes > 0) continue;
            argument += rest.front();
        } else if (backslashes % 2 == 1) {
            argument += '"';
        } else if (quoted && rest.substr(1).starts_with('"')) {
            argument += '"';
            rest.remove_prefix(1);
        } else {
            quoted = !quoted;
        }
        rest.remove_prefix(1);
    }
    return argument;
}

std::vector<std::string> argumentsOf(std::string_view rest) {
    std::vector<std::string> arguments;
    for (rest = withoutLeadingBlanks(rest); !rest.empty(); rest = withoutLeadingBlanks(rest)) {
        arguments.push_back(takeArgument(rest));
    }
    return arguments;
}

/// Length of the longest start of the line, up to a blank or the end, that is a program; of the first word
/// when none is.
std::size_t programLength(std::string_view line, const std::function<bool(const std::string&)>& isProgram) {
    const std::size_t firstWord = std::min(line.find_first_of(kBlanks), line.size());
    for (std::size_t end = line.find_last_not_of(kBlanks) + 1; end > firstWord;) {
        if (isProgram(std::string(line.substr(0, end)))) return end;
        const std::size_t blank = line.find_last_of(kBlanks, end - 1);
        end = line.find_last_not_of(kBlanks, blank) + 1;
    }
    return firstWord;
}

}  // namespace

SplitCommand splitCommandLine(std::string_view line,
                              const std::function<bool(const std::string&)>& isProgram) {
    line = withoutLeadingBlanks(line);
    SplitCommand command;
    if (line.starts_with('"')) {
        line.remove_prefix(1);
        const std::size_t end = std::min(line.find('"'), line.size());
        command.program = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
    } else {
        const std::size_t end = programLength(line, isProgram);
        command.program = line.substr(0, end);
        line.remove_prefix(end);
    }
    command.tail = withoutLeadingBlanks(line);
    command.arguments = argumentsOf(line);
    return command;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments written into a command line, for programs and for batch files.
#include "platform/command_line_quote.h"

#include "runtime/ascii_case.h"
#include "runtime/failure.h"

#include <algorithm>

namespace kav {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kNeedsQuotes = " \t\"";

// Quotes do not keep the processor from replacing %NAME%, and arguments may hold a single quote, so that
// nothing in them counts as quoted.
constexpr std::string_view kMoreThanTextInArguments = "&|<>^%\r\n\0"sv;
constexpr std::string_view kMoreThanTextInQuotes = "\"%\r\n\0"sv;

// No commands at its start, no replacing of !NAME!, the outermost quotes taken off, one command and the end.
constexpr std::string_view kSwitches = " /d /v:off /s /c ";

void refuse(std::string_view text, std::string_view characters) {
    const std::size_t at = text.find_first_of(characters);
    if (at == std::string_view::npos) return;
    throw failureOf(kInvalidCall, "a batch file cannot be given \"" + std::string(text) + "\"");
}

}  // namespace

std::string quotedArgument(std::string_view argument) {
    if (!argument.empty() && argument.find_first_of(kNeedsQuotes) == std::string_view::npos) {
        return std::string(argument);
    }
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    for (const char character : argument) {
        // Backslashes count double before a quote, and one more makes the quote a letter.
        if (character == '"') quoted.append(backslashes + 1, '\\');
        backslashes = character == '\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted.append(backslashes, '\\') + '"';
}

bool isBatchFile(std::string_view path) {
    // The system opens the same file whether or not dots and blanks follow its name.
    path = path.substr(0, path.find_last_not_of(". ") + 1);
    const std::string end = lowered(path.substr(path.size() - std::min<std::size_t>(path.size(), 4)));
    return end == ".bat" || end == ".cmd";
}

std::string batchCommandLine(std::string_view processor, std::string_view batchFile,
                             std::string_view arguments) {
    refuse(batchFile, kMoreThanTextInQuotes);
    refuse(arguments, kMoreThanTextInArguments);
    std::string line = "\"";
    line.append(processor).append("\"").append(kSwitches);
    line.append("\"\"").append(batchFile).append("\"");
    if (!arguments.empty()) line.append(" ").append(arguments);
    return line + '"';
}

}  // namespace kav

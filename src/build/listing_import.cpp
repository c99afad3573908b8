// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler's listing, read for the errors that become tasks.
#include "build/listing_import.h"

#include "runtime/lines.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::string_view kMarker = "temp";
constexpr std::size_t kLineNumberAt = 14;  // behind "temp.z80 line "
constexpr std::size_t kLineNumberLength = 4;
constexpr int kLargestInField = 9999;
constexpr int kLargestLine = 99'999'999;

std::string_view lineNumberField(std::string_view line) {
    return line.substr(std::min(kLineNumberAt, line.size())).substr(0, kLineNumberLength);
}

/// The value of the digits that the field begins with, behind any blanks.
int leadingDigits(std::string_view field) {
    field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
    int value = 0;
    for (const char c : field) {
        if (c < '0' || c > '9' || value > kLargestLine) break;
        value = value * 10 + (c - '0');
    }
    return value;
}

/// What follows the first ": " but for its blank, which stays: two blanks then stand in the task's text.
std::string_view messageOf(std::string_view line) {
    const std::size_t colon = line.find(": ");
    return colon == std::string_view::npos ? line : line.substr(colon + 1);
}

ImportedTask taskFrom(std::string_view line, char documentNumber) {
    const std::string_view field = lineNumberField(line);
    ImportedTask task;
    task.text = "Document ";
    task.text += documentNumber;
    task.text += " Line " + std::to_string(leadingDigits(field)) + ": ";
    task.text += messageOf(line);
    task.tag = documentNumber;
    task.tag += field;
    return task;
}

/// The lines that tell of errors: every line that follows a line which begins with "temp".
std::vector<std::string_view> errorLines(std::string_view listing) {
    std::vector<std::string_view> lines;
    bool marked = false;
    LineReader reader(listing);
    while (const auto line = reader.next()) {
        if (marked) lines.push_back(*line);
        marked = line->starts_with(kMarker);
    }
    return lines;
}

LineError errorFrom(std::string_view line) {
    constexpr std::string_view kFarLine = "line ";
    std::string_view message = messageOf(line);
    if (message.starts_with(' ')) message.remove_prefix(1);
    LineError error{leadingDigits(lineNumberField(line)), std::string(message)};
    if (error.line == kLargestInField && message.starts_with(kFarLine)) {
        error.line = std::max(error.line, leadingDigits(message.substr(kFarLine.size())));
    }
    return error;
}

}  // namespace

std::vector<ImportedTask> importListing(std::string_view listing, char documentNumber) {
    std::vector<ImportedTask> tasks;
    for (const std::string_view line : errorLines(listing))
        tasks.push_back(taskFrom(line, documentNumber));
    return tasks;
}

std::vector<LineError> listedErrors(std::string_view listing) {
    std::vector<LineError> errors;
    for (const std::string_view line : errorLines(listing))
        errors.push_back(errorFrom(line));
    return errors;
}

}  // namespace kav

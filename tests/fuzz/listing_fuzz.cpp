// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the import of errors with arbitrary listings. The input holds a listing and, with a byte FF in front
// of each, messages that a build ends it with.
#include "build/listing_import.h"
#include "build_protocol/error_report.h"
#include "expect.h"
#include "runtime/lines.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using kav::BuildError;
using kav::ImportedTask;
using kav::fuzz::expect;
using kav::fuzz::takePart;

constexpr char kDocument = '7';

/// The lines of the listing that are told of: those behind a line that begins with "temp".
std::vector<std::string_view> toldLines(std::string_view listing) {
    std::vector<std::string_view> told;
    const auto lines = kav::linesOf(listing);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (lines[i - 1].starts_with("temp")) told.push_back(lines[i]);
    }
    return told;
}

void checkTask(const ImportedTask& task, std::string_view line) {
    const std::string_view field = line.size() > 14 ? line.substr(14, 4) : std::string_view();
    expect(task.tag == kDocument + std::string(field),
           "a tag is the document and the line's four characters");

    const std::string_view text = task.text;
    constexpr std::string_view kStart = "Document 7 Line ";
    expect(text.starts_with(kStart), "a task names document and line");
    const std::size_t numberEnd = text.find(": ", kStart.size());
    expect(numberEnd != std::string_view::npos, "a task's message stands behind a colon");
    const std::string_view number = text.substr(kStart.size(), numberEnd - kStart.size());
    expect(!number.empty() && number.size() <= 4, "four characters give at most four digits");
    expect(number.find_first_not_of("0123456789") == std::string_view::npos, "a line number is digits");
    expect(number == "0" || field.find(number) != std::string_view::npos, "a line number is in the listing");
    expect(line.ends_with(text.substr(numberEnd + 2)), "a message is the end of a line of the listing");
}

std::vector<BuildError> errorsFrom(std::string_view rest) {
    std::vector<BuildError> errors;
    while (!rest.empty()) {
        const std::string_view part = takePart(rest);
        // A line beyond the four digits of a listing now and then.
        const int line = part.empty() ? 1 : static_cast<unsigned char>(part.front()) * 61;
        errors.push_back({line, std::string(part)});
    }
    return errors;
}

/// Whatever the source and the messages hold, each error becomes one task and nothing else does.
void checkBuilt(std::string_view listing, const std::vector<BuildError>& errors) {
    const std::string built = kav::withoutErrorBlock(std::string(listing)) + kav::errorBlock(errors);
    const auto tasks = kav::importListing(built, kDocument);
    expect(tasks.size() == errors.size(), "each error becomes one task");
    for (std::size_t i = 0; i < tasks.size(); ++i) {
        const std::string number = std::to_string(std::clamp(errors[i].line, 1, 9999));
        expect(tasks[i].text.starts_with("Document 7 Line " + number + ":  "), "a task has its error's line");
        std::string message = errors[i].message;
        std::replace_if(
            message.begin(), message.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        expect(tasks[i].text.ends_with(message), "a task has its error's message");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    std::string_view rest = input;
    const std::string_view listing = takePart(rest);

    const auto tasks = kav::importListing(listing, kDocument);
    const auto lines = toldLines(listing);
    expect(tasks.size() == lines.size(), "each line that is told of becomes one task");
    for (std::size_t i = 0; i < tasks.size(); ++i)
        checkTask(tasks[i], lines[i]);
    checkBuilt(listing, errorsFrom(rest));
    return 0;
}

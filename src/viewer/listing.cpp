// SPDX-License-Identifier: GPL-3.0-or-later
// A build's listing as the viewer shows it: its text, and which of its lines are errors.
#include "viewer/listing.h"

#include <array>
#include <charconv>
#include <map>
#include <optional>

namespace kav::viewer {

namespace {

constexpr std::size_t kNumberDigits = 4;
constexpr std::size_t kFileNameLength = 8;
constexpr std::string_view kLineWord = " line ";

// What the toolkit takes for the end of a line besides LF: two separators and two marks of its own.
constexpr std::array<std::string_view, 4> kForeignLineEnds{"\xE2\x80\xA8", "\xE2\x80\xA9", "\xEF\xB7\x90",
                                                           "\xEF\xB7\x91"};
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The number at the start of the text and what follows it; nothing when there are fewer than four digits.
std::optional<int> takeNumber(std::string_view& text) {
    std::size_t digits = 0;
    while (digits < text.size() && isDigit(text[digits]))
        ++digits;
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + digits, number);
    if (digits < kNumberDigits || read.ec != std::errc()) return std::nullopt;
    text.remove_prefix(digits);
    return number;
}

/// `temp.z80 line 0012: message`. Behind the number 9999 the message begins with the true one, "line 12345:
/// ".
std::optional<ListingError> readError(std::string_view line) {
    if (line.size() < kFileNameLength || line.find(' ') != kFileNameLength) return std::nullopt;
    line.remove_prefix(kFileNameLength);
    if (!line.starts_with(kLineWord)) return std::nullopt;
    line.remove_prefix(kLineWord.size());
    auto number = takeNumber(line);
    if (!number || !line.starts_with(": ")) return std::nullopt;
    line.remove_prefix(2);
    if (*number == 9999 && line.starts_with(kLineWord.substr(1))) {
        std::string_view rest = line.substr(kLineWord.size() - 1);
        const auto whole = takeNumber(rest);
        if (whole && rest.starts_with(": ")) {
            number = whole;
            line = rest.substr(2);
        }
    }
    return ListingError{*number, std::string(line), 0, 0};
}

/// The number of a listed line of the document. A `+` behind it marks a line of an included file.
std::optional<int> documentLine(std::string_view line) {
    const auto number = takeNumber(line);
    return number && line.starts_with(' ') ? number : std::nullopt;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    lines.push_back(text);
    return lines;
}

}  // namespace

std::string listingText(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        std::size_t length = 1;
        for (const std::string_view foreign : kForeignLineEnds) {
            if (bytes.starts_with(foreign)) length = foreign.size();
        }
        if (length > 1) {
            text += kReplacement;
        } else if (bytes.front() == '\r') {
            if (!bytes.starts_with("\r\n")) text += '\n';
        } else {
            text += bytes.front() == '\0' ? ' ' : bytes.front();
        }
        bytes.remove_prefix(length);
    }
    return text;
}

ListingErrors errorsOf(std::string_view listing) {
    const std::vector<std::string_view> lines = linesOf(listing);
    ListingErrors found;
    std::map<int, std::optional<std::size_t>> listedAt;  // where each source line with an error stands first
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto error = readError(lines[i]);
        if (!error) continue;
        error->toldAt = i;
        listedAt.emplace(error->sourceLine, std::nullopt);
        found.errors.push_back(std::move(*error));
    }
    if (found.errors.empty()) return found;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto number = documentLine(lines[i]);
        const auto wanted = number ? listedAt.find(*number) : listedAt.end();
        if (wanted != listedAt.end() && !wanted->second) wanted->second = i;
        if (wanted != listedAt.end() || readError(lines[i])) found.markedLines.push_back(i);
    }
    for (ListingError& error : found.errors)
        error.shownAt = listedAt.at(error.sourceLine).value_or(error.toldAt);
    return found;
}

std::size_t errorBeside(std::size_t current, std::size_t count, bool backward) {
    if (current >= count) return backward ? count - 1 : 0;
    return backward ? (current + count - 1) % count : (current + 1) % count;
}

}  // namespace kav::viewer

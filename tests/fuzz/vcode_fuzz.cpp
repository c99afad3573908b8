// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the string converter with arbitrary texts, compressed and plain.
#include "expect.h"
#include "runtime/code_points.h"
#include "runtime/lines.h"
#include "support/told_vcode.h"
#include "tools/string_converter.h"
#include "tools/vcode.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using kav::LineStart;
using kav::fuzz::expect;

constexpr std::string_view kDataStart = "\t.db ";

bool neverAsked() {
    expect(false, "no text within the limit is asked about");
    return false;
}

/// The data behind the comments, and how many bytes these say it has.
struct Data {
    std::string_view lines;
    std::size_t size = 0;
};

Data dataOf(std::string_view output) {
    constexpr std::string_view kBefore = "compressed to ";
    Data data;
    const std::size_t size = output.find(kBefore);
    expect(size != std::string_view::npos, "a comment tells the size");
    data.size = std::strtoul(output.data() + size + kBefore.size(), nullptr, 10);
    data.lines = output.substr(output.find(kDataStart));
    return data;
}

/// What a program that unpacks VCode shows, entry by entry.
std::vector<std::string> unpackedEntries(std::string_view lines) {
    std::vector<std::string> shown;
    while (!lines.empty()) {
        if (lines.starts_with(kDataStart)) lines.remove_prefix(kDataStart.size());
        if (lines.front() == '"') {
            shown.push_back(kav::firstCharacters(lines.substr(1), 1));
            lines.remove_prefix(shown.back().size() + 2);
        } else {
            const std::size_t code = std::strtoul(std::string(lines.substr(1, 2)).c_str(), nullptr, 16);
            shown.push_back(code > 128 ? std::string(kav::kVCodePairs.at(code - 129))
                                       : std::string(1, static_cast<char>(code)));
            lines.remove_prefix(3);
        }
        if (lines.starts_with(',')) lines.remove_prefix(1);
        if (lines.starts_with(kav::kCrLf)) lines.remove_prefix(kav::kCrLf.size());
    }
    return shown;
}

/// The unpacked text is the text, but that characters which were encoded twice are shown twice.
void checkUnpacked(std::string_view text, const Data& data) {
    std::string shown;
    std::size_t pairCount = 0;
    for (const std::string& entry : unpackedEntries(data.lines)) {
        shown += entry;
        if (kav::characterCount(entry) == 2) ++pairCount;
    }
    expect(kav::characterCount(text) - pairCount == data.size, "the size counts the pairs");
    std::size_t at = 0;
    for (const char c : shown) {
        if (at < text.size() && text[at] == c) {
            ++at;
        } else {
            expect(at > 0 && c == text[at - 1], "what is shown is the text or a character again");
        }
    }
    expect(at == text.size(), "all of the text is shown");
}

void checkVCode(std::string_view joined) {
    const auto output = kav::vcodeConversion(joined, LineStart::tabbed, neverAsked);
    expect(output == kav::test::toldVCode(joined, "\t"), "the conversion follows the told rule");
    checkUnpacked(joined, dataOf(*output));
}

void checkPlain(std::string_view joined) {
    const std::string output = kav::plainConversion(joined, LineStart::tabbed);
    std::string_view lines = output;
    std::string text;
    while (true) {
        expect(lines.starts_with("\t.db \""), "a plain line is a quoted string");
        lines.remove_prefix(kDataStart.size() + 1);
        const std::string line = kav::firstCharacters(lines, 16);
        const std::size_t left = joined.size() - text.size();
        const std::string taken = line.substr(0, left);
        text += taken;
        lines.remove_prefix(taken.size());
        expect(lines.starts_with('"'), "a quoted string has 16 characters or the rest");
        lines.remove_prefix(1);
        if (lines.empty()) break;
        expect(lines.starts_with(kav::kCrLf), "a plain line ends in CR LF");
        lines.remove_prefix(kav::kCrLf.size());
    }
    expect(text == joined, "the strings are the text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    const std::string joined = kav::joinedInput(input);
    checkPlain(joined);
    if (!joined.empty()) checkVCode(joined);
    return 0;
}

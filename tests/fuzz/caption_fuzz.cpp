// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the caption's reader with arbitrary captions, and with those of arbitrary documents. The input holds
// a caption, a document's name and the digits of its number, with a byte FF between them.
#include "documents/caption.h"
#include "expect.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using kav::fuzz::expect;
using kav::fuzz::takePart;

constexpr std::size_t kReadPast = 6;  // "Doc ", a digit, a TAB

/// A document's number, from 1.
int numberFrom(std::string_view bytes) {
    int number = 1;
    for (const char c : bytes.substr(0, 4))
        number = number * 10 + static_cast<unsigned char>(c) % 10;
    return number;
}

void checkAny(std::string_view caption, std::string_view name) {
    const int digit = kav::captionDigit(caption);
    expect(digit >= 0 && digit <= 9, "a digit is one");
    expect(kav::captionName(caption).size() + kReadPast == caption.size() || caption.size() < kReadPast,
           "a name is all but six characters");
    const std::string renamed = kav::captionWithName(caption, name);
    expect(renamed.starts_with(caption.substr(0, kReadPast)), "a new name keeps the first six characters");
    if (caption.size() >= kReadPast) expect(kav::captionName(renamed) == name, "a new name reads back");
    expect(kav::displayedCaption(caption).find('\t') == std::string::npos, "no TAB is shown");
}

void checkDocument(int number, std::string_view name) {
    const std::string digits = std::to_string(number);
    const std::string caption = kav::documentCaption(number, name);
    expect(kav::captionDigit(caption) == digits.front() - '0', "a document answers to its first digit");
    if (number <= 9) {
        expect(kav::captionName(caption) == name, "a name reads back");
    } else {
        const std::string surplus = digits.substr(2) + "\t" + std::string(name);
        expect(kav::captionName(caption) == surplus, "from 10 on a name has what six characters leave over");
    }
    const std::string renamed = kav::captionWithName(caption, name);
    expect((renamed == caption) == (number <= 9), "up to 9 the same name gives the same caption");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    std::string_view rest = input;
    const std::string_view caption = takePart(rest);
    const std::string_view name = takePart(rest);
    const int number = numberFrom(takePart(rest));
    checkAny(caption, name);
    checkDocument(number, name);
    checkDocument(number % 9 + 1, name);
    return 0;
}

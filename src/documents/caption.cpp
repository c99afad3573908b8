// SPDX-License-Identifier: GPL-3.0-or-later
// A document window's caption: its number and its name.
#include "documents/caption.h"

#include <algorithm>
#include <charconv>

namespace kav {

namespace {

// "Doc ", one digit and the TAB.
constexpr std::size_t kPrefixLength = 6;
constexpr std::size_t kDigitAt = 4;

}  // namespace

std::string documentCaption(int number, std::string_view name) {
    return ("Doc " + std::to_string(number) + "\t").append(name);
}

std::string captionName(std::string_view caption) {
    return std::string(caption.size() < kPrefixLength ? std::string_view() : caption.substr(kPrefixLength));
}

std::string captionWithName(std::string_view caption, std::string_view name) {
    return std::string(caption.substr(0, kPrefixLength)).append(name);
}

int captionNumber(std::string_view caption) {
    int number = 0;
    const std::string_view digits = caption.substr(std::min(kDigitAt, caption.size()));
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::string captionTrueName(std::string_view caption) {
    const std::size_t behindNumber =
        std::min(caption.find_first_not_of("0123456789", kDigitAt), caption.size());
    if (behindNumber == caption.size() || caption[behindNumber] != '\t') return captionName(caption);
    return std::string(caption.substr(behindNumber + 1));
}

int captionDigit(std::string_view caption) {
    if (caption.size() <= kDigitAt) return 0;
    const char digit = caption[kDigitAt];
    return digit >= '0' && digit <= '9' ? digit - '0' : 0;
}

std::string displayedCaption(std::string_view caption) {
    std::string shown;
    for (const char c : caption) {
        if (c == '\t') {
            shown += "    ";
        } else {
            shown += c;
        }
    }
    return shown;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The code optimizer, in one pass over the text.
#include "documents/optimizer.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::string_view kLoadZero = "ld a,0";
constexpr std::string_view kClear = "xor a";
constexpr std::string_view kCompareZero = "cp 0";
constexpr std::string_view kTest = "or a";

}  // namespace

// Replacing one idiom after the other, each from the top until none is left, has the same result: no
// replacement can take part in a new match, neither idiom overlaps itself or the other.
std::string optimizedCode(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t done = 0;
    std::size_t load = text.find(kLoadZero);
    std::size_t compare = text.find(kCompareZero);
    while (load != std::string_view::npos || compare != std::string_view::npos) {
        const std::size_t next = std::min(load, compare);
        result += text.substr(done, next - done);
        if (next == load) {
            result += kClear;
            done = load + kLoadZero.size();
            load = text.find(kLoadZero, done);
        } else {
            result += kTest;
            done = compare + kCompareZero.size();
            compare = text.find(kCompareZero, done);
        }
    }
    result += text.substr(done);
    return result;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// "Did you mean": the nearest known word to a misspelt one.
#include "assembler/suggestion.h"

#include "assembler/symbol_table.h"
#include "assembler/text.h"
#include "runtime/ascii_case.h"

#include <algorithm>
#include <vector>

namespace kav::assembler {

namespace {

constexpr std::size_t kLongestWord = 40;        // longer names are not compared
constexpr std::size_t kMostCandidates = 20000;  // keeps a message about a huge program quick

/// Short words are near to everything, so they must match better.
std::size_t allowedMistakes(std::string_view word) {
    if (word.size() < 3) return 0;
    return word.size() < 6 ? 1 : 2;
}

}  // namespace

std::size_t typingMistakes(std::string_view a, std::string_view b, std::size_t limit) {
    const std::size_t difference = a.size() > b.size() ? a.size() - b.size() : b.size() - a.size();
    if (difference > limit) return limit + 1;
    const std::size_t width = b.size() + 1;
    std::vector<std::size_t> cost((a.size() + 1) * width);
    const auto at = [&](std::size_t i, std::size_t j) -> std::size_t& { return cost[i * width + j]; };
    for (std::size_t i = 0; i <= a.size(); ++i)
        at(i, 0) = i;
    for (std::size_t j = 0; j <= b.size(); ++j)
        at(0, j) = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t exchange = at(i - 1, j - 1) + (a[i - 1] == b[j - 1] ? 0 : 1);
            at(i, j) = std::min({exchange, at(i - 1, j) + 1, at(i, j - 1) + 1});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) at(i, j) = std::min(at(i, j), at(i - 2, j - 2) + 1);
        }
    }
    return std::min(at(a.size(), b.size()), limit + 1);
}

NearestWord::NearestWord(std::string_view misspelt)
    : misspelt_(lowered(misspelt.substr(0, kLongestWord + 1))),
      bestDistance_(allowedMistakes(misspelt) + 1) {}

void NearestWord::consider(std::string_view candidate) {
    if (bestDistance_ == 0 || misspelt_.size() > kLongestWord || candidate.size() > kLongestWord) return;
    const std::size_t distance = typingMistakes(misspelt_, lowered(candidate), bestDistance_ - 1);
    if (distance == 0 || distance >= bestDistance_) return;  // the word itself is known not to fit
    bestDistance_ = distance;
    best_ = candidate;
}

std::string nearestLabel(std::string_view misspelt, const SymbolTable& symbols) {
    NearestWord nearest(misspelt);
    const std::size_t count = std::min(symbols.labels().size(), kMostCandidates);
    for (std::size_t i = 0; i < count; ++i) {
        const Label& label = symbols.labels()[i];
        if (label.defined) nearest.consider(label.name);
    }
    return nearest.best();
}

std::string didYouMean(std::string_view word) {
    return word.empty() ? std::string() : ", did you mean " + shown(word) + "?";
}

}  // namespace kav::assembler

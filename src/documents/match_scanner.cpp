// SPDX-License-Identifier: GPL-3.0-or-later
// All matches of a wanted text in one scan.
#include "documents/match_scanner.h"

#include "documents/case_folding.h"
#include "runtime/code_points.h"

namespace kav {

MatchScanner::MatchScanner(std::string_view text, std::string_view wanted, std::size_t start,
                           Comparison comparison)
    : text_(text), comparison_(comparison), offset_(start) {
    for (std::size_t at = 0; at < wanted.size();) {
        const CodePoint character = codePointAt(wanted, at);
        wanted_.push_back(comparable(character.value));
        at += character.length;
    }
    shorter_.assign(wanted_.size() + 1, 0);
    for (std::size_t i = 1; i < wanted_.size(); ++i)
        shorter_[i + 1] = continued(shorter_[i], wanted_[i]);
    recentOffsets_.assign(wanted_.size(), 0);
}

char32_t MatchScanner::comparable(char32_t codePoint) const {
    return comparison_ == Comparison::text ? foldedCase(codePoint) : codePoint;
}

/// How much of the wanted text is matched when `codePoint` follows `matched` matched characters.
std::size_t MatchScanner::continued(std::size_t matched, char32_t codePoint) const {
    if (matched == wanted_.size()) matched = shorter_[matched];
    while (matched > 0 && wanted_[matched] != codePoint)
        matched = shorter_[matched];
    return wanted_[matched] == codePoint ? matched + 1 : 0;
}

std::optional<MatchScanner::Found> MatchScanner::next() {
    const std::size_t length = wanted_.size();
    while (offset_ < text_.size()) {
        const CodePoint character = codePointAt(text_, offset_);
        const std::size_t begin = offset_;
        offset_ += character.length;
        ++charactersRead_;
        if (length == 0) return Found{begin, begin, charactersRead_ - 1};

        recentOffsets_[charactersRead_ % length] = begin;
        matched_ = continued(matched_, comparable(character.value));
        if (matched_ < length) continue;
        const std::size_t firstCharacter = charactersRead_ - length + 1;
        return Found{recentOffsets_[firstCharacter % length], offset_, firstCharacter - 1};
    }
    return std::nullopt;
}

}  // namespace kav

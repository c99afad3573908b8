// SPDX-License-Identifier: GPL-3.0-or-later
// Searching a text and replacing every match in it.
#include "documents/find_replace.h"

#include "documents/match_scanner.h"
#include "runtime/code_points.h"
#include "runtime/failure.h"
#include "runtime/lines.h"
#include "runtime/number_text.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace kav {

namespace {

/// A text that is replaced in from front to back. What lies before the current place is settled; what lies
/// behind is the rest of the original with the latest replacements, as yet unsettled, in front of it.
class LiveText {
  public:
    LiveText(std::string_view text, std::size_t start) : settled_(text.substr(0, start)) {
        putInFront(text.substr(start));
    }

    [[nodiscard]] std::size_t place() const { return settled_.size(); }

    /// Moves the place on to where so many characters lie between the start and it, or to the end.
    void moveTo(std::size_t character) {
        charactersSettled_ += take(character - charactersSettled_, &settled_).characters;
    }

    /// Takes out as many characters behind the place, or all that are there, and returns how many bytes went.
    std::size_t drop(std::size_t characters) { return take(characters, nullptr).bytes; }

    /// Puts a text behind the place. It must outlive this object.
    void putInFront(std::string_view text) {
        if (!text.empty()) pending_.push_back(text);
    }

    /// The whole text; nothing can be done to it any more.
    std::string finished() {
        for (; !pending_.empty(); pending_.pop_back())
            settled_ += pending_.back();
        return std::move(settled_);
    }

  private:
    struct Taken {
        std::size_t characters = 0;
        std::size_t bytes = 0;
    };

    Taken take(std::size_t characters, std::string* keeper) {
        Taken taken;
        while (taken.characters < characters && !pending_.empty()) {
            std::string_view& front = pending_.back();
            std::size_t end = 0;
            for (; taken.characters < characters && end < front.size(); ++taken.characters) {
                end += codePointAt(front, end).length;
            }
            if (keeper != nullptr) keeper->append(front.substr(0, end));
            taken.bytes += end;
            front.remove_prefix(end);
            if (front.empty()) pending_.pop_back();
        }
        return taken;
    }

    std::string settled_;
    std::size_t charactersSettled_ = 0;      ///< since the start
    std::vector<std::string_view> pending_;  ///< the frontmost piece last
};

}  // namespace

std::size_t searchPositionOf(std::string_view field) {
    const std::optional<double> number = wholeNumber(field);
    if (!number) throw failureOf(kTypeMismatch);
    const double position = std::nearbyint(*number);
    if (position < 1) throw failureOf(kInvalidCall);
    constexpr double kFarthest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::size_t>(std::fmin(position, kFarthest));
}

std::optional<Match> findMatch(std::string_view text, std::string_view wanted, std::size_t position,
                               Comparison comparison) {
    MatchScanner scanner(text, wanted, characterStart(text, position - 1), comparison);
    const auto found = scanner.next();
    if (!found) return std::nullopt;
    return Match{found->begin + 1, found->end - found->begin};
}

Replacements replaceAll(std::string_view text, std::string_view wanted, std::string_view replacement,
                        std::size_t position, Comparison comparison) {
    Replacements result;
    result.searchPosition = position;
    const std::size_t start = characterStart(text, position - 1);
    const std::size_t wantedCharacters = characterCount(wanted);
    MatchScanner scanner(text, wanted, start, comparison);
    LiveText live(text, start);
    while (const auto found = scanner.next()) {
        live.moveTo(found->charactersBefore);
        const std::size_t place = live.place();
        result.edits.push_back({place, live.drop(wantedCharacters)});
        live.putInFront(replacement);
        result.searchPosition = Match{found->begin + 1, 0}.nextSearchPosition();
    }
    result.text = live.finished();
    return result;
}

std::string notFoundTitle(std::string_view wanted) {
    return "Find " + std::string(wanted);
}

std::string notFoundText(std::string_view wanted) {
    return std::string(wanted) + " not found.";
}

}  // namespace kav

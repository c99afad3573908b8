// SPDX-License-Identifier: GPL-3.0-or-later
// VCode: a scan over the characters with a table of pairs at hand.
#include "tools/vcode.h"

#include "runtime/code_points.h"
#include "runtime/failure.h"
#include "runtime/lines.h"

#include <cstdint>
#include <vector>

namespace kav {

namespace {

constexpr std::size_t kPassesPerLine = 16;
constexpr unsigned kCodeBeforeFirstEntry = 128;

/// Finds table entries by their two characters, all of which are ASCII. Entries count from 1; 0 is none.
class PairIndex {
  public:
    constexpr PairIndex() {
        for (std::size_t entry = kVCodePairs.size(); entry > 0; --entry) {
            const std::string_view pair = kVCodePairs[entry - 1];
            if (pair.empty()) continue;
            std::uint8_t& first = firstEntry_[slotOf(pair[0], pair[1])];
            sameAgain_[entry] = first;
            first = static_cast<std::uint8_t>(entry);
        }
    }

    /// The first entry behind `entry` whose pair is the two characters.
    [[nodiscard]] constexpr std::size_t entryBehind(std::size_t entry, char first, char second) const {
        if (!isAscii(first) || !isAscii(second)) return 0;
        std::size_t found = firstEntry_[slotOf(first, second)];
        while (found != 0 && found <= entry)
            found = sameAgain_[found];
        return found;
    }

  private:
    static constexpr std::size_t kAscii = 128;
    static constexpr bool isAscii(char c) { return static_cast<unsigned char>(c) < kAscii; }
    static constexpr std::size_t slotOf(char first, char second) {
        return static_cast<unsigned char>(first) * kAscii + static_cast<unsigned char>(second);
    }

    std::array<std::uint8_t, kAscii * kAscii> firstEntry_{};
    std::array<std::uint8_t, kVCodePairs.size() + 1> sameAgain_{};
};

constexpr PairIndex kPairIndex;

/// The codes that are written as numbers rather than as quoted characters: the letters and, as the scheme
/// has it, the character behind each alphabet.
constexpr bool isWrittenAsCode(char c) {
    return (c >= 'A' && c <= '[') || (c >= 'a' && c <= '{');
}

std::string codeEntry(unsigned code) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {',', '$', kDigits[code / 16], kDigits[code % 16]};
}

std::string characterEntry(std::string_view character) {
    if (isWrittenAsCode(character[0])) return codeEntry(static_cast<unsigned char>(character[0]));
    std::string entry = ",\"";
    entry.append(character).append("\"");
    return entry;
}

/// One scan over a text; each data line is a string of entries that begin with a comma.
class Scan {
  public:
    explicit Scan(std::string_view text) : rest_(text) {
        for (std::size_t pass = 1; !rest_.empty(); ++pass) {
            // The first line takes one pass fewer than the others.
            if (pass % kPassesPerLine == 0) lines_.emplace_back();
            encodeNext();
        }
    }

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
    [[nodiscard]] std::size_t pairCount() const { return pairCount_; }

  private:
    void encodeNext() {
        std::string& line = lines_.back();
        std::size_t entry = 0;
        bool found = false;
        // A match moves on by one character only, and the table goes on from there: the second character
        // of the pair is tried again, as the first of another.
        while (rest_.size() > 1 && (entry = kPairIndex.entryBehind(entry, rest_[0], rest_[1])) != 0) {
            line += codeEntry(kCodeBeforeFirstEntry + static_cast<unsigned>(entry));
            ++pairCount_;
            found = true;
            rest_.remove_prefix(1);
        }
        const std::string character = firstCharacters(rest_, 1);
        if (!found) line += characterEntry(character);
        rest_.remove_prefix(character.size());
    }

    std::string_view rest_;
    std::vector<std::string> lines_{1};
    std::size_t pairCount_ = 0;
};

std::string comment(std::size_t originalLength, std::size_t pairCount) {
    std::string text = ";Compressed with Corwin Haleby's VCode algorithm\r\n";
    text += ";using KAV Compiler's String Converter.\r\n";
    text += ";Origionally " + std::to_string(originalLength) + " bytes, compressed to ";
    text += std::to_string(originalLength - pairCount) + " bytes.\r\n";
    return text;
}

}  // namespace

std::optional<std::string> vcodeConversion(std::string_view joined, LineStart lineStart,
                                           const AskTruncate& askTruncate) {
    std::size_t length = characterCount(joined);
    if (length > kVCodeLimit) {
        if (!askTruncate()) return std::nullopt;
        length = kVCodeLimit;
    }
    const std::string text = firstCharacters(joined, length);
    if (text.empty()) throw failureOf(kInvalidCall);

    const Scan scan(text);
    std::string output = comment(length, scan.pairCount());
    bool first = true;
    for (const std::string& line : scan.lines()) {
        if (!first) output += kCrLf;
        first = false;
        output += static_cast<char>(lineStart);
        output.append(".db ").append(line, 1);
    }
    return output;
}

}  // namespace kav

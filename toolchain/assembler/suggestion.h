// SPDX-License-Identifier: GPL-3.0-or-later
// "Did you mean": the nearest known word to a misspelt one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kav::assembler {

class SymbolTable;

/// Takes candidates one by one and keeps the one that the fewest typing mistakes separate from the
/// misspelt word: characters left out, put in, exchanged or swapped with a neighbour.
class NearestWord {
  public:
    explicit NearestWord(std::string_view misspelt);

    void consider(std::string_view candidate);

    /// The best candidate, or an empty text when none is near.
    [[nodiscard]] const std::string& best() const { return best_; }

  private:
    std::string misspelt_;
    std::string best_;
    std::size_t bestDistance_;
};

/// The number of typing mistakes between two words in lower case, or `limit` + 1 when there are more.
[[nodiscard]] std::size_t typingMistakes(std::string_view a, std::string_view b, std::size_t limit);

/// The global label nearest to `misspelt`, or an empty text.
[[nodiscard]] std::string nearestLabel(std::string_view misspelt, const SymbolTable& symbols);

/// ", did you mean WORD?", or nothing for an empty word.
[[nodiscard]] std::string didYouMean(std::string_view word);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// Which words may be meant by one that is begun.
#pragma once

#include "documents/aids/program_facts.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// The words that a list offers.
struct Completions {
    std::size_t begin = 0;           ///< where the begun word starts in its line, in bytes
    std::vector<std::string> words;  ///< by alphabet; empty when there is nothing to offer
};

/// Why a list is wanted: it came up with a key that was typed, or the user asked for it.
enum class CompletionCause { Typing, Asking };

/// The words that may stand at the caret: mnemonics and directives in the case of what is typed, names as
/// they are defined. None within comments, texts, numbers and words, or for names that the line defines.
/// While the user types, none for less than two letters and for a word that is known as it stands.
[[nodiscard]] Completions completionsAt(std::string_view line, std::size_t caret, const ProgramFacts& facts,
                                        CompletionCause cause);

}  // namespace kav

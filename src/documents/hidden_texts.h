// SPDX-License-Identifier: GPL-3.0-or-later
// The hidden texts: phrases that, typed as a document's whole text, bring a surprise.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// What a trigger phrase does to the document.
struct HiddenText {
    enum class Effect {
        None,     ///< the replacement alone
        Italic,   ///< italic from now on, and the replacement
        Bold,     ///< bold from now on, and the replacement
        Browser,  ///< start the command line in a maximized window; the text stays
    };
    Effect effect = Effect::None;
    std::string replacement;
    std::string commandLine;  ///< for Browser alone
};

/// The hidden text that `text`, as a whole, letter for letter, triggers.
[[nodiscard]] std::optional<HiddenText> hiddenTextFor(std::string_view text, double usageSeconds);

/// False when no text of `length` bytes can be a trigger, so that a caller need not fetch a large text at
/// every key.
[[nodiscard]] bool mayBeHiddenText(std::size_t length);

}  // namespace kav

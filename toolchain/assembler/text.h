// SPDX-License-Identifier: GPL-3.0-or-later
// Cutting a line of source into its pieces: quotes, operands, blanks around them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kav::assembler {

/// The text without the blanks at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The position behind the quoted text that begins at `position`, which holds a quote. An apostrophe that
/// encloses no character (as in af') is one character by itself. npos when a double quote is not closed.
[[nodiscard]] std::size_t behindQuoted(std::string_view text, std::size_t position);

/// Hands out the parts of a list: what commas outside quotes and parentheses separate, trimmed. An empty
/// text has no part.
class ListReader {
  public:
    explicit ListReader(std::string_view list) : rest_(trimmed(list)), more_(!rest_.empty()) {}

    /// Takes the next part into `part`; false behind the last one.
    bool next(std::string_view& part);

  private:
    std::string_view rest_;
    bool more_;
};

/// The character that an escape stands for, `position` being that of the backslash, which moves behind
/// the escape: \n \r \b \t \f \\ \" \' and one to three octal digits; any other character is itself.
[[nodiscard]] std::uint8_t escapedCharacter(std::string_view text, std::size_t& position);

/// Source text as messages show it: on one line, at most 60 characters.
[[nodiscard]] std::string shown(std::string_view text);

/// The text as shown() has it, "none" where there is none.
[[nodiscard]] std::string shownOrNone(std::string_view text);

/// The name in capitals and parentheses, as messages name labels: "(START)".
[[nodiscard]] std::string shownName(std::string_view name);

}  // namespace kav::assembler

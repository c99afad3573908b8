// SPDX-License-Identifier: GPL-3.0-or-later
// Textual macros: names that stand for text, with or without arguments.
#pragma once

#include "assembler/name_place.h"
#include "runtime/ascii_case.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kav::assembler {

/// One macro.
struct Macro {
    std::string name;
    std::vector<std::string> parameters;
    std::string body;
    bool takesArguments = false;  ///< was defined with parentheses, even empty ones
    bool hasLines = false;        ///< its body is lines of source (#macro), not a piece of a line
    NamePlace place;
};

/// All macros of a pass. Names differ in case; a macro that takes arguments is also found in another case
/// when parentheses follow its name and no macro has the exact name.
class MacroTable {
  public:
    /// Adds the macro, in place of one with the same name.
    void define(Macro macro);

    /// Removes the macro; false when there was none.
    bool remove(std::string_view name);

    /// Adds text to the macro that was defined last; false when there is none.
    bool extendLast(std::string_view text);

    /// The macro of exactly this name, or nothing. Holds until the next definition.
    [[nodiscard]] const Macro* find(std::string_view name) const;

    /// The macro that the name stands for at its use; `argumentsFollow` tells of a parenthesis behind it.
    [[nodiscard]] const Macro* findForUse(std::string_view name, bool argumentsFollow) const;

    /// False when no macro's name has this first letter and length: a quick no to almost every name.
    [[nodiscard]] bool mayBeMacro(std::string_view name) const {
        return (lengths_[firstIndex(name)] & lengthBit(name)) != 0;
    }

    [[nodiscard]] const std::unordered_map<std::string, std::vector<Macro>>& all() const { return byName_; }

  private:
    static std::size_t firstIndex(std::string_view name) {
        return static_cast<unsigned char>(lowered(name.front()));
    }
    static std::uint64_t lengthBit(std::string_view name) {
        return std::uint64_t{1} << (name.size() < 63 ? name.size() : 63);
    }

    std::unordered_map<std::string, std::vector<Macro>> byName_;  // by the name in lower case
    std::array<std::uint64_t, 256> lengths_{};
    std::string last_;
};

/// What expanding a line gave.
enum class Expansion {
    kNothing,      ///< the line holds no macro
    kExpanded,     ///< the text is in the buffer
    kTooLong,      ///< it has no end, or a length that no line should have
    kUnclosed,     ///< an argument list is not closed
    kWrongNumber,  ///< a macro got another number of arguments than it has parameters
};

/// Replaces the macros in lines of source.
class MacroExpander {
  public:
    explicit MacroExpander(const MacroTable& macros) : macros_(macros) {}

    /// Expands `line` into `buffer`, which may not be what `line` points into. `from` is the position of
    /// the first name that may be a macro. With `indentCalls` a call in column 1 gets a blank before it, so
    /// that its text is not taken for a label.
    Expansion expand(std::string_view line, std::size_t from, bool indentCalls, std::string& buffer);

    /// The macro that the last failing expand() was about.
    [[nodiscard]] const std::string& culprit() const { return culprit_; }

    /// Characters moved since the expander was made, to bound the work of hostile sources.
    [[nodiscard]] std::uint64_t work() const { return work_; }

  private:
    const MacroTable& macros_;
    std::string culprit_;
    std::uint64_t work_ = 0;
};

/// Reads the arguments between the parentheses that open at `position`, which moves behind the closing one.
/// Commas inside parentheses or quotes separate nothing. False when the list is not closed.
bool readArguments(std::string_view text, std::size_t& position, std::vector<std::string>& arguments);

/// The macro's body with arguments in place of its parameters, outside quotes.
[[nodiscard]] std::string withArguments(const Macro& macro, const std::vector<std::string>& arguments);

}  // namespace kav::assembler

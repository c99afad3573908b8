// SPDX-License-Identifier: GPL-3.0-or-later
// Expressions: 32 bits, signed, from left to right without precedence.
#pragma once

#include "assembler/characters.h"
#include "assembler/number.h"
#include "assembler/symbol_table.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kav::assembler {

/// Labels without a name: `+` and `-` in column 1.
struct AnonymousLabels {
    std::vector<std::int32_t> forward;          ///< the addresses of this pass's `+` so far
    std::vector<std::int32_t> previousForward;  ///< those of the whole pass before
    std::vector<std::int32_t> backward;         ///< the addresses of this pass's `-` so far

    /// Starts a pass.
    void beginPass() {
        previousForward.swap(forward);
        forward.clear();
        backward.clear();
    }
};

/// What the names in an expression mean at the place where it stands.
struct ExpressionPlace {
    std::int32_t location = 0;      ///< the location counter
    std::uint32_t module = 0;       ///< the scope of local labels
    std::size_t forwardLabels = 0;  ///< how many `+` labels stand before it
};

/// An expression's value, as far as it can be told.
struct Value {
    enum State : std::uint8_t {
        kKnown,
        kForward,  ///< depends on a label that may still follow
        kBad,      ///< makes no sense; the evaluator's error() says why
    };

    State state = kBad;
    std::int32_t number = 0;

    [[nodiscard]] bool known() const { return state == kKnown; }
};

/// What an evaluator needs to know all the time.
struct ExpressionWorld {
    SymbolTable& symbols;
    AnonymousLabels& anonymous;
    const CharacterTable& characters;
    char localLabelMark = '_';
    bool strict = false;           ///< refuse what the dialect itself does not have
    bool labelsMayFollow = true;   ///< false once a label without a value is an error
    bool usePreviousPass = false;  ///< labels that follow have the value of the pass before
    bool suggest = true;           ///< errors name the label nearest to a misspelt one
};

/// Finds the value of expressions. One at a time; the error is that of the last one.
class Evaluator {
  public:
    explicit Evaluator(const ExpressionWorld& world) : world_(world) {}

    /// The value of `text`, all of which must be one expression.
    Value evaluate(std::string_view text, const ExpressionPlace& place);

    /// What is wrong with an expression whose value is kBad.
    [[nodiscard]] const std::string& error() const { return error_; }

  private:
    Value expression(int depth);
    Value term(int depth);
    Value parenthesised(int depth);
    Value unary(char sign, int depth);
    Value number();
    Value character();
    Value name();
    Value anonymousLabel(char sign);
    Value apply(std::string_view sign, Value left, Value right);
    std::string_view operatorAtCursor();
    Value bad(std::string error);
    [[nodiscard]] bool isAnonymousReference() const;
    void skipBlanks() { cursor_ = kCharacters.skipBlanks(text_, cursor_); }
    [[nodiscard]] bool atEnd() const { return cursor_ >= text_.size(); }

    const ExpressionWorld& world_;
    ExpressionPlace place_;
    std::string_view text_;
    std::size_t cursor_ = 0;
    std::string error_;
};

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// Which words may be meant by one that is begun.
#include "documents/aids/completions.h"

#include "assembler/characters.h"
#include "assembler/instruction_table.h"
#include "assembler/words.h"
#include "documents/aids/source_line.h"
#include "runtime/ascii_case.h"

#include <algorithm>

namespace kav {

namespace {

using assembler::equalIgnoringCase;

constexpr std::size_t kFewestLetters = 2;

/// The piece that a letter typed at the caret would belong to.
Piece pieceAtCaret(std::string_view line, std::size_t caret) {
    const std::string withLetter = std::string(line.substr(0, caret)) + "x";
    return piecesOf(withLetter).back();
}

bool isUpper(std::string_view word) {
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    const auto isSmall = [](char c) { return c >= 'a' && c <= 'z'; };
    return std::any_of(word.begin(), word.end(), isCapital) &&
           std::none_of(word.begin(), word.end(), isSmall);
}

/// Collects the words that begin like the one that is typed.
class Collector {
  public:
    explicit Collector(std::string_view begun) : begun_(begun), upper_(isUpper(begun)) {}

    /// A name that somebody has spelled.
    void addName(std::string_view name) {
        if (!equalIgnoringCase(name.substr(0, begun_.size()), begun_)) return;
        if (name.size() == begun_.size()) isKnown_ = true;
        words_.emplace_back(name);
    }

    /// A word of the language, which has no case of its own.
    void addWord(std::string_view sign, std::string_view word) {
        std::string text = std::string(sign) + std::string(word);
        if (upper_) {
            for (char& c : text)
                c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        }
        addName(text);
    }

    /// True when one of the words is what was typed.
    [[nodiscard]] bool isKnown() const { return isKnown_; }

    /// The words by alphabet, each once.
    std::vector<std::string> take() {
        const auto before = [](const std::string& a, const std::string& b) {
            const std::string lowerA = lowered(a);
            const std::string lowerB = lowered(b);
            return lowerA != lowerB ? lowerA < lowerB : a < b;
        };
        std::sort(words_.begin(), words_.end(), before);
        const auto same = [](const std::string& a, const std::string& b) { return equalIgnoringCase(a, b); };
        words_.erase(std::unique(words_.begin(), words_.end(), same), words_.end());
        return std::move(words_);
    }

  private:
    std::string_view begun_;
    bool upper_;
    bool isKnown_ = false;
    std::vector<std::string> words_;
};

void addMacros(Collector& words, const ProgramFacts& facts) {
    for (const assembler::NamedMacro& macro : facts.result().macros)
        words.addName(macro.name);
}

void addOperations(Collector& words, const ProgramFacts& facts) {
    for (const std::string_view mnemonic : assembler::mnemonics())
        words.addWord("", mnemonic);
    for (const std::string& mnemonic : facts.result().addedMnemonics)
        words.addWord("", mnemonic);
    for (const std::string_view directive : assembler::directiveNames())
        words.addWord("", directive);
    addMacros(words, facts);
}

void addNames(Collector& words, const ProgramFacts& facts) {
    for (const assembler::Symbol& symbol : facts.result().symbols)
        words.addName(symbol.name);
    addMacros(words, facts);
}

/// Adds what may stand in such a place; false where nothing is offered.
bool addFor(PieceKind kind, Collector& words, const ProgramFacts& facts) {
    switch (kind) {
        case PieceKind::Operation:
            addOperations(words, facts);
            return true;
        case PieceKind::Directive:
            for (const std::string_view directive : assembler::directiveNames())
                words.addWord(".", directive);
            return true;
        case PieceKind::HashDirective:
            for (const std::string_view directive : assembler::hashDirectiveNames())
                words.addWord("#", directive);
            return true;
        case PieceKind::Name:
            addNames(words, facts);
            return true;
        default:
            return false;
    }
}

std::size_t lettersOf(std::string_view word) {
    const bool hasSign = !word.empty() && (word.front() == '.' || word.front() == '#');
    return word.size() - (hasSign ? 1 : 0);
}

}  // namespace

Completions completionsAt(std::string_view line, std::size_t caret, const ProgramFacts& facts,
                          CompletionCause cause) {
    const bool withinWord = caret < line.size() && assembler::kCharacters.isNamePart(line[caret]);
    if (caret > line.size() || withinWord) return {};
    const Piece piece = pieceAtCaret(line, caret);
    const std::string_view begun = line.substr(piece.begin, caret - piece.begin);
    const bool typing = cause == CompletionCause::Typing;
    if (typing && lettersOf(begun) < kFewestLetters) return {};

    Collector words(begun);
    if (!addFor(piece.kind, words, facts)) return {};
    if (typing && (words.isKnown() || assembler::isRegisterOrCondition(begun))) return {};
    return {piece.begin, words.take()};
}

}  // namespace kav

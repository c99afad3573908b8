// SPDX-License-Identifier: GPL-3.0-or-later
// A line of assembly source taken apart for those who read it.
#include "documents/aids/source_line.h"

#include "assembler/characters.h"
#include "assembler/number.h"
#include "assembler/text.h"  // where quoted text ends

#include <algorithm>

namespace kav {

namespace {

using assembler::equalIgnoringCase;
using assembler::kCharacters;

/// Reads one line from left to right, statement by statement.
class LineSplitter {
  public:
    explicit LineSplitter(std::string_view line) : line_(line) {}

    std::vector<Piece> split() {
        while (!atEnd())
            readStatement();
        return std::move(pieces_);
    }

  private:
    [[nodiscard]] bool atEnd() const { return cursor_ >= line_.size(); }
    [[nodiscard]] char here() const { return line_[cursor_]; }
    [[nodiscard]] bool atNameStart() const { return !atEnd() && kCharacters.isNameStart(here()); }
    [[nodiscard]] bool atStatementEnd() const { return atEnd() || here() == '\\' || here() == ';'; }
    void skipBlanks() { cursor_ = kCharacters.skipBlanks(line_, cursor_); }

    std::string_view take(PieceKind kind, std::size_t end) {
        const std::size_t begin = cursor_;
        cursor_ = std::min(end, line_.size());
        pieces_.push_back({kind, begin, cursor_});
        return line_.substr(begin, cursor_ - begin);
    }

    std::string_view takeName(PieceKind kind) { return take(kind, kCharacters.endOfName(line_, cursor_)); }

    void readStatement() {
        const std::size_t begin = cursor_;
        skipBlanks();
        if (!atEnd() && here() == '#') {
            readHashDirective();
        } else {
            const bool inFirstColumn = cursor_ == begin;
            if (inFirstColumn) skipAnonymousLabel();
            readLabel(inFirstColumn && cursor_ == begin);
            readOperation();
        }
        readOperands();
        endStatement();
    }

    void endStatement() {
        if (atEnd()) return;
        if (here() == ';') {
            take(PieceKind::Comment, line_.size());
        } else {
            ++cursor_;
        }
    }

    /// A + or - that stands alone in column 1 is a label without a name.
    void skipAnonymousLabel() {
        if (atEnd() || (here() != '+' && here() != '-')) return;
        const char next = cursor_ + 1 < line_.size() ? line_[cursor_ + 1] : ' ';
        if (next != ':' && !kCharacters.isBlank(next)) return;
        cursor_ += next == ':' ? 2 : 1;
        skipBlanks();
    }

    void readLabel(bool inFirstColumn) {
        if (!atNameStart()) return;
        const std::size_t end = kCharacters.endOfName(line_, cursor_);
        const bool colon = end < line_.size() && line_[end] == ':';
        // A macro that is called with parentheses may stand in column 1, too.
        const bool call = end < line_.size() && line_[end] == '(';
        if (!colon && (!inFirstColumn || call)) return;
        takeName(PieceKind::Label);
        if (colon) ++cursor_;
        skipBlanks();
    }

    void readOperation() {
        skipBlanks();
        if (atNameStart()) {
            takeName(PieceKind::Operation);
        } else if (!atEnd() && here() == '.') {
            take(PieceKind::Directive, kCharacters.endOfName(line_, cursor_ + 1));
        }
    }

    void readHashDirective() {
        const std::size_t word = kCharacters.skipBlanks(line_, cursor_ + 1);
        const std::size_t end = kCharacters.endOfName(line_, word);
        const std::string_view name = line_.substr(word, end - word);
        take(PieceKind::HashDirective, end);
        skipBlanks();
        if (equalIgnoringCase(name, "include") || equalIgnoringCase(name, "import")) {
            readFileName();
        } else if (equalIgnoringCase(name, "define")) {
            readDefinition();
        } else if (equalIgnoringCase(name, "macro") && atNameStart()) {
            takeName(PieceKind::Label);
        }
    }

    /// A file's name has no escapes: its backslashes stand between folders.
    void readFileName() {
        if (atEnd()) return;
        const bool quoted = here() == '"' || here() == '<';
        const std::size_t end = quoted ? line_.find(here() == '<' ? '>' : '"', cursor_ + 1)
                                       : line_.find_first_of(" \t;", cursor_);
        take(PieceKind::String, quoted && end != std::string_view::npos ? end + 1 : end);
    }

    /// What a macro stands for reads like a statement.
    void readDefinition() {
        if (!atNameStart()) return;
        takeName(PieceKind::Label);
        if (!atEnd() && here() == '(') {
            while (!atStatementEnd() && here() != ')')
                readOperandPiece(false);
            if (!atStatementEnd()) ++cursor_;
        }
        readOperation();
    }

    void readOperands() {
        bool behindValue = false;
        while (!atStatementEnd())
            behindValue = readOperandPiece(behindValue);
    }

    /// Reads one piece or sign; true when a value ends with it, so that a % behind it is an operator.
    bool readOperandPiece(bool behindValue) {
        const char c = here();
        if (c == '"') {
            take(PieceKind::String, assembler::behindQuoted(line_, cursor_));
            return true;
        }
        if (c == '\'') return readApostrophe();
        if (kCharacters.isNameStart(c)) {
            takeName(PieceKind::Name);
            return true;
        }
        if (kCharacters.isBlank(c)) {
            ++cursor_;
            return behindValue;
        }
        return readNumberOrSign(behindValue);
    }

    bool readApostrophe() {
        const std::size_t end = assembler::behindQuoted(line_, cursor_);
        if (end > cursor_ + 1) {
            take(PieceKind::Number, end);
        } else {
            ++cursor_;
        }
        return true;
    }

    bool readNumberOrSign(bool behindValue) {
        const bool isOperator = here() == '%' && behindValue;
        const assembler::Number number = assembler::readNumber(line_, cursor_, true);
        if (!isOperator && number.kind != assembler::NumberKind::kNone) {
            take(PieceKind::Number, std::max(number.end, cursor_ + 1));
            return true;
        }
        const char sign = here();
        ++cursor_;
        return sign == ')' || sign == '$';
    }

    std::string_view line_;
    std::size_t cursor_ = 0;
    std::vector<Piece> pieces_;
};

}  // namespace

std::vector<Piece> piecesOf(std::string_view line) {
    return LineSplitter(line).split();
}

}  // namespace kav

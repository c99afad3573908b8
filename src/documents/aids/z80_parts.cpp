// SPDX-License-Identifier: GPL-3.0-or-later
// What the pieces of a line of Z80 source are to its reader.
#include "documents/aids/z80_parts.h"

#include "assembler/characters.h"
#include "assembler/directives.h"
#include "assembler/instruction_table.h"
#include "assembler/words.h"
#include "documents/aids/source_line.h"

#include <algorithm>

namespace kav {

namespace {

bool isHashDirective(std::string_view piece) {
    const std::size_t word = assembler::kCharacters.skipBlanks(piece, 1);
    const std::vector<std::string_view> names = assembler::hashDirectiveNames();
    return std::any_of(names.begin(), names.end(), [&](std::string_view name) {
        return assembler::equalIgnoringCase(name, piece.substr(word));
    });
}

/// Walks along the pieces of a line, which mean different things behind an instruction and a directive.
class PartTeller {
  public:
    explicit PartTeller(std::string_view line) : line_(line) {}

    std::vector<Z80Token> tell() {
        for (const Piece& piece : piecesOf(line_)) {
            Z80Token token{piece.begin, piece.end, partOf(piece)};
            if (token.part == Z80Part::Register) token.end = behindRegister(piece);
            if (token.part != Z80Part::Plain) tokens_.push_back(token);
        }
        return std::move(tokens_);
    }

  private:
    Z80Part partOf(const Piece& piece) {
        const std::string_view text = line_.substr(piece.begin, piece.end - piece.begin);
        switch (piece.kind) {
            case PieceKind::Label:
                label_ = text;
                return Z80Part::Label;
            case PieceKind::Operation:
            case PieceKind::Directive:
                return operation(piece, text);
            case PieceKind::HashDirective:
                takesRegisters_ = false;
                return isHashDirective(text) ? Z80Part::Directive : Z80Part::Plain;
            case PieceKind::Name:
                return takesRegisters_ && assembler::isRegisterOrCondition(text) ? Z80Part::Register
                                                                                 : Z80Part::Plain;
            case PieceKind::Number:
                return text.front() == '\'' ? Z80Part::String : Z80Part::Number;
            case PieceKind::String:
                return Z80Part::String;
            case PieceKind::Comment:
                return Z80Part::Comment;
        }
        return Z80Part::Plain;
    }

    /// The apostrophe of af' belongs to its name.
    [[nodiscard]] std::size_t behindRegister(const Piece& piece) const {
        const std::string_view longer = line_.substr(piece.begin, piece.end + 1 - piece.begin);
        const bool isShadow = longer.back() == '\'' && assembler::isRegisterOrCondition(longer);
        return isShadow ? piece.end + 1 : piece.end;
    }

    /// A word that is no instruction and no directive may be a macro, which may be handed registers.
    Z80Part operation(const Piece& piece, std::string_view word) {
        const std::string_view rest = line_.substr(piece.end);
        const assembler::Statement statement{label_, word, rest.substr(0, rest.find_first_of(";\\"))};
        label_ = {};
        const bool isDirective = assembler::directiveCalled(word, statement, false) != nullptr;
        takesRegisters_ = !isDirective;
        if (isDirective) return Z80Part::Directive;
        return assembler::formsOf(word).empty() ? Z80Part::Plain : Z80Part::Mnemonic;
    }

    std::string_view line_;
    std::string_view label_;
    bool takesRegisters_ = true;
    std::vector<Z80Token> tokens_;
};

}  // namespace

std::vector<Z80Token> z80PartsOf(std::string_view line) {
    return PartTeller(line).tell();
}

}  // namespace kav

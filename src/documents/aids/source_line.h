// SPDX-License-Identifier: GPL-3.0-or-later
// A line of assembly source taken apart for those who read it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kav {

/// What a piece of a line is, as far as its place in the line tells.
enum class PieceKind {
    Label,  ///< a name that the line defines: in column 1, in front of a colon, or behind #define or #macro
    Operation,      ///< the word that a statement begins with
    Directive,      ///< such a word with its period
    HashDirective,  ///< a # and the word behind it
    Name,           ///< any other word
    Number,         ///< a number, or a character in apostrophes
    String,         ///< with its quotes, or the file that an include names
    Comment,        ///< from its semicolon to the end of the line
};

/// A piece of a line; places are byte offsets in the line.
struct Piece {
    PieceKind kind = PieceKind::Name;
    std::size_t begin = 0;
    std::size_t end = 0;  ///< behind its last byte

    bool operator==(const Piece&) const = default;
};

/// The pieces of a line without its line end, from left to right. Signs and blanks between them are no
/// pieces.
[[nodiscard]] std::vector<Piece> piecesOf(std::string_view line);

}  // namespace kav

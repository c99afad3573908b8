// SPDX-License-Identifier: GPL-3.0-or-later
// Which parenthesis of a line belongs to which.
#include "documents/aids/parentheses.h"

#include "documents/aids/source_line.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kav {

namespace {

/// The line with blanks in place of what is quoted or a comment.
std::string codeOf(std::string_view line) {
    std::string code(line);
    for (const Piece& piece : piecesOf(line)) {
        const bool isQuotedOrComment =
            piece.kind == PieceKind::String || piece.kind == PieceKind::Comment || line[piece.begin] == '\'';
        if (isQuotedOrComment)
            code.replace(piece.begin, piece.end - piece.begin, piece.end - piece.begin, ' ');
    }
    return code;
}

/// The parenthesis at `place`, which holds one.
Parenthesis withPartner(std::string_view code, std::size_t place) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < code.size(); ++i) {
        if (code[i] == '\\') open.clear();
        if (code[i] == '(') open.push_back(i);
        if (code[i] != ')') continue;
        if (open.empty()) {
            if (i == place) return {place, std::nullopt};
            continue;
        }
        if (i == place) return {place, open.back()};
        if (open.back() == place) return {place, i};
        open.pop_back();
    }
    return {place, std::nullopt};
}

}  // namespace

std::optional<Parenthesis> parenthesisBeside(std::string_view line, std::size_t caret) {
    const auto mayBeOne = [line](std::size_t place) {
        return place < line.size() && (line[place] == '(' || line[place] == ')');
    };
    const bool inFront = caret > 0 && mayBeOne(caret - 1);
    if (!inFront && !mayBeOne(caret)) return std::nullopt;
    const std::string code = codeOf(line);
    for (const std::size_t place : {caret - 1, caret}) {
        if (mayBeOne(place) && code[place] != ' ') return withPartner(code, place);
    }
    return std::nullopt;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The pair of parentheses that the caret is at.
#include "documents/aids/matching_parentheses.h"

#include "documents/aids/parentheses.h"
#include "documents/text_box.h"

namespace kav {

using Sci = QsciScintillaBase;

namespace {

constexpr long kNowhere = -1;

}  // namespace

MatchingParentheses::MatchingParentheses(TextBox& box) : TextAid(box) {
    connect(&box_, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        if ((updated & (Sci::SC_UPDATE_CONTENT | Sci::SC_UPDATE_SELECTION)) != 0) mark();
    });
}

void MatchingParentheses::applyColours(const AidColours& colours) {
    const auto colour = [this](int style, Colour text, Colour ground) {
        box_.SendScintilla(Sci::SCI_STYLESETFORE, static_cast<uintptr_t>(style), static_cast<intptr_t>(text));
        box_.SendScintilla(Sci::SCI_STYLESETBACK, static_cast<uintptr_t>(style),
                           static_cast<intptr_t>(ground));
    };
    colour(Sci::STYLE_BRACELIGHT, colours.matchedParenthesis, colours.matchedGround);
    colour(Sci::STYLE_BRACEBAD, colours.loneParenthesis, colours.loneGround);
}

void MatchingParentheses::mark() {
    const long caret = box_.SendScintilla(Sci::SCI_GETCURRENTPOS);
    const long line = box_.SendScintilla(Sci::SCI_LINEFROMPOSITION, static_cast<uintptr_t>(caret));
    const long begin = box_.SendScintilla(Sci::SCI_POSITIONFROMLINE, static_cast<uintptr_t>(line));
    const LineStart start = startOfLine(line);
    const auto found = parenthesisBeside(start.text, static_cast<std::size_t>(caret - begin));
    const bool hasPartner = found && found->partner;
    // The partner of one that seems to be lone may stand further on in a line that is cut off.
    const bool isLone = found && !found->partner && !start.isCutOff;
    const auto positionOf = [begin](std::size_t place) { return begin + static_cast<long>(place); };
    if (hasPartner) {
        box_.SendScintilla(Sci::SCI_BRACEHIGHLIGHT, static_cast<uintptr_t>(positionOf(found->place)),
                           positionOf(*found->partner));
    } else {
        const long lone = isLone ? positionOf(found->place) : kNowhere;
        box_.SendScintilla(Sci::SCI_BRACEBADLIGHT, static_cast<uintptr_t>(lone));
    }
}

}  // namespace kav

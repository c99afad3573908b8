// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of everything that helps to read a text, for light and for dark desktops.
#pragma once

#include "documents/aids/colour.h"

namespace kav {

/// What a text box is painted with. Each colour of text can be read on each ground that it may stand on.
struct AidColours {
    Colour text;
    Colour paper;
    Colour currentLine;  ///< ground of the line that holds the caret

    Colour mnemonic;
    Colour registerName;
    Colour directive;
    Colour number;
    Colour string;
    Colour comment;
    Colour label;

    Colour matchedParenthesis;
    Colour matchedGround;  ///< of such a parenthesis
    Colour loneParenthesis;
    Colour loneGround;

    Colour marginText;
    Colour marginPaper;
    Colour errorMark;  ///< on marginPaper
};

/// The colours that suit a desktop whose texts are written with `ink` on `paper`.
[[nodiscard]] AidColours aidColoursOn(Colour paper, Colour ink);

}  // namespace kav

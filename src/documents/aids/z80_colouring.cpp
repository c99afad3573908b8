// SPDX-License-Identifier: GPL-3.0-or-later
// Colours for the pieces of Z80 source.
#include "documents/aids/z80_colouring.h"

#include "documents/aids/z80_parts.h"
#include "documents/text_box.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace kav {

Z80Colouring::Z80Colouring(TextBox& box) : TextAid(box) {
    connect(&box_, &QsciScintillaBase::SCN_STYLENEEDED, this, &Z80Colouring::colourLinesInView);
}

void Z80Colouring::applyColours(const AidColours& colours) {
    const std::array<std::pair<Z80Part, Colour>, kZ80Parts> colourOfPart = {{
        {Z80Part::Plain, colours.text},
        {Z80Part::Mnemonic, colours.mnemonic},
        {Z80Part::Register, colours.registerName},
        {Z80Part::Directive, colours.directive},
        {Z80Part::Number, colours.number},
        {Z80Part::String, colours.string},
        {Z80Part::Comment, colours.comment},
        {Z80Part::Label, colours.label},
    }};
    for (const auto& [part, colour] : colourOfPart) {
        box_.SendScintilla(QsciScintillaBase::SCI_STYLESETFORE, static_cast<uintptr_t>(part),
                           static_cast<intptr_t>(colour));
    }
}

void Z80Colouring::colourLinesInView() {
    const long first = box_.SendScintilla(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
    // One more line than fits may be seen in part.
    const long inView = box_.SendScintilla(QsciScintillaBase::SCI_LINESONSCREEN) + 1;
    const long end = std::min(first + inView, static_cast<long>(box_.lines()));
    for (long line = first; line < end; ++line)
        colourLine(line);
    // Nothing counts as coloured for good: what scrolls into view is asked for when it is painted.
    box_.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, 0UL);
}

void Z80Colouring::colourLine(long line) {
    const long begin =
        box_.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, static_cast<uintptr_t>(line));
    const std::string text = startOfLine(line).text;
    std::string styles(text.size(), static_cast<char>(Z80Part::Plain));
    for (const Z80Token& token : z80PartsOf(text))
        styles.replace(token.begin, token.end - token.begin, token.end - token.begin,
                       static_cast<char>(token.part));
    box_.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, static_cast<uintptr_t>(begin));
    box_.SendScintilla(QsciScintillaBase::SCI_SETSTYLINGEX, static_cast<uintptr_t>(styles.size()),
                       styles.data());
}

}  // namespace kav

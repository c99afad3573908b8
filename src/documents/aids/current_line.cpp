// SPDX-License-Identifier: GPL-3.0-or-later
// The line that the caret is in.
#include "documents/aids/current_line.h"

#include "documents/text_box.h"

namespace kav {

CurrentLine::CurrentLine(TextBox& box) : TextAid(box) {
    box_.SendScintilla(QsciScintillaBase::SCI_SETCARETLINEVISIBLE, 1UL);
    box_.SendScintilla(QsciScintillaBase::SCI_SETCARETLINEVISIBLEALWAYS, 1UL);
}

void CurrentLine::applyColours(const AidColours& colours) {
    box_.SendScintilla(QsciScintillaBase::SCI_SETCARETLINEBACK, static_cast<uintptr_t>(colours.currentLine));
}

}  // namespace kav

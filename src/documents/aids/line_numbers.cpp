// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of a text's lines.
#include "documents/aids/line_numbers.h"

#include "documents/aids/margins.h"
#include "documents/text_box.h"

#include <algorithm>
#include <string>

namespace kav {

namespace {

/// A text of some hundred lines is usual: its margin does not jump while the first lines are typed.
constexpr int kFewestDigits = 3;

}  // namespace

LineNumbers::LineNumbers(TextBox& box) : TextAid(box) {
    box_.SendScintilla(QsciScintillaBase::SCI_SETMARGINTYPEN, kLineNumberMargin,
                       static_cast<intptr_t>(QsciScintillaBase::SC_MARGIN_NUMBER));
    connect(&box_, &QsciScintilla::linesChanged, this, [this] {
        const int digits = static_cast<int>(std::to_string(box_.lines()).size());
        if (std::max(digits, kFewestDigits) != digits_) fitWidth();
    });
    connect(&box_, &QsciScintillaBase::SCN_ZOOM, this, &LineNumbers::fitWidth);
}

void LineNumbers::applyColours(const AidColours& colours) {
    constexpr auto kStyle = static_cast<uintptr_t>(QsciScintillaBase::STYLE_LINENUMBER);
    box_.SendScintilla(QsciScintillaBase::SCI_STYLESETFORE, kStyle,
                       static_cast<intptr_t>(colours.marginText));
    box_.SendScintilla(QsciScintillaBase::SCI_STYLESETBACK, kStyle,
                       static_cast<intptr_t>(colours.marginPaper));
    fitWidth();
}

void LineNumbers::fitWidth() {
    digits_ = std::max(static_cast<int>(std::to_string(box_.lines()).size()), kFewestDigits);
    // Half a digit of room on either side.
    const std::string widest(static_cast<std::size_t>(digits_) + 1, '9');
    const long width =
        box_.SendScintilla(QsciScintillaBase::SCI_TEXTWIDTH,
                           static_cast<uintptr_t>(QsciScintillaBase::STYLE_LINENUMBER), widest.c_str());
    box_.SendScintilla(QsciScintillaBase::SCI_SETMARGINWIDTHN, kLineNumberMargin,
                       static_cast<intptr_t>(width));
}

}  // namespace kav

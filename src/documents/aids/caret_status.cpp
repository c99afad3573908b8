// SPDX-License-Identifier: GPL-3.0-or-later
// Where the caret is and what the selection costs.
#include "documents/aids/caret_status.h"

#include "documents/aids/fact_texts.h"
#include "documents/aids/program_watch.h"
#include "documents/document_window.h"
#include "documents/text_box.h"

namespace kav {

namespace {

using Sci = QsciScintillaBase;

}  // namespace

CaretStatus::CaretStatus(TextBox& box, Doc& document, const ProgramWatch& program)
    : TextAid(box), document_(document), program_(program) {
    connect(&box_, &Sci::SCN_UPDATEUI, this, [this](int updated) {
        if ((updated & (Sci::SC_UPDATE_CONTENT | Sci::SC_UPDATE_SELECTION)) != 0) tell();
    });
    connect(&box_, &TextBox::changed, this, &CaretStatus::tell);
    connect(&program_, &ProgramWatch::renewed, this, &CaretStatus::tell);
    tell();
}

void CaretStatus::tell() {
    const auto caret = static_cast<std::size_t>(box_.SendScintilla(Sci::SCI_GETCURRENTPOS));
    const TextPlace place = box_.placeOf(caret);
    const long column =
        box_.SendScintilla(Sci::SCI_COUNTCHARACTERS, caret - place.column, static_cast<intptr_t>(caret));
    std::string text =
        caretText(static_cast<std::size_t>(place.line) + 1, static_cast<std::size_t>(column) + 1);
    const std::string cost = costOfSelection();
    if (!cost.empty()) text += "   " + cost;
    document_.setCaretStatus(text);
}

std::string CaretStatus::costOfSelection() const {
    const std::size_t length = box_.selLength();
    if (length == 0 || !program_.isCurrent()) return {};
    const TextPlace first = box_.placeOf(box_.selStart());
    const TextPlace last = box_.placeOf(box_.selStart() + length);
    return costText(program_.latest().costOf({first.line + 1, first.column, last.line + 1, last.column}));
}

}  // namespace kav

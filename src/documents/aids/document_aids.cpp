// SPDX-License-Identifier: GPL-3.0-or-later
// All that helps to read a document's text.
#include "documents/aids/document_aids.h"

#include "documents/aids/caret_status.h"
#include "documents/aids/code_hover.h"
#include "documents/aids/completion_list.h"
#include "documents/aids/current_line.h"
#include "documents/aids/error_marks.h"
#include "documents/aids/line_numbers.h"
#include "documents/aids/matching_parentheses.h"
#include "documents/aids/program_watch.h"
#include "documents/aids/resting_caret.h"
#include "documents/aids/z80_colouring.h"
#include "documents/document_window.h"
#include "documents/text_box.h"

#include <QEvent>
#include <QPalette>

namespace kav {

namespace {

Colour colourOf(const QColor& colour) {
    return rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
               static_cast<unsigned>(colour.blue()));
}

}  // namespace

DocumentAids::DocumentAids(Doc& document, Workspace& workspace) : box_(document.txt()) {
    add<LineNumbers>();
    add<RestingCaret>();
    add<Z80Colouring>();
    add<CurrentLine>();
    add<MatchingParentheses>();
    errorMarks_ = &add<ErrorMarks>();
    auto& program = add<ProgramWatch>(workspace);
    add<CaretStatus>(document, program);
    add<CodeHover>(program);
    add<CompletionList>(document, program);

    connect(&box_, &TextBox::stylesReset, this, &DocumentAids::applyColours);
    box_.installEventFilter(this);
    applyColours();
}

void DocumentAids::showErrors(const std::vector<LineError>& errors) {
    errorMarks_->show(errors);
}

bool DocumentAids::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &box_ && event->type() == QEvent::PaletteChange) applyColours();
    return QObject::eventFilter(watched, event);
}

void DocumentAids::applyColours() {
    const QPalette palette = box_.palette();
    const AidColours colours = aidColoursOn(colourOf(palette.color(QPalette::Active, QPalette::Base)),
                                            colourOf(palette.color(QPalette::Active, QPalette::Text)));
    box_.setTextColours(colours.text, colours.paper);
    for (const auto& aid : aids_)
        aid->applyColours(colours);
}

}  // namespace kav

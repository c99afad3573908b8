// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of the word under the mouse.
#include "documents/aids/code_hover.h"

#include "documents/aids/fact_texts.h"
#include "documents/aids/program_watch.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace kav {

namespace {

using Sci = QsciScintillaBase;

/// Code holds characters that tooltips would take for markup.
QString asPlainText(const std::string& text) {
    return "<p style='white-space:pre'>" + shown(text).toHtmlEscaped() + "</p>";
}

}  // namespace

CodeHover::CodeHover(TextBox& box, ProgramWatch& program) : TextAid(box), program_(program) {
    box_.viewport()->installEventFilter(this);
}

bool CodeHover::eventFilter(QObject* watched, QEvent* event) {
    const bool asked = watched == box_.viewport() && event->type() == QEvent::ToolTip;
    return (asked && showFor(*static_cast<QHelpEvent*>(event))) || TextAid::eventFilter(watched, event);
}

/// False where the place is not this aid's or nothing is known of it.
bool CodeHover::showFor(const QHelpEvent& event) {
    const bool dragging = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (dragging || !box_.hasFocus() || event.x() < leftOfText()) return false;
    const long position =
        box_.SendScintilla(Sci::SCI_CHARPOSITIONFROMPOINTCLOSE, static_cast<uintptr_t>(event.x()), event.y());
    if (position < 0) return false;
    const TextPlace place = box_.placeOf(static_cast<std::size_t>(position));
    const std::string line = startOfLine(place.line).text;
    const HoverText hover = hoverTextAt(line, place.line + 1, place.column, program_.current());
    if (hover.text.empty()) return false;

    const auto lineStart = static_cast<std::size_t>(position) - place.column;
    const QRect word(box_.pointAt(lineStart + hover.begin),
                     box_.pointAt(lineStart + hover.end) + QPoint(0, box_.lineHeight()));
    QToolTip::showText(event.globalPos(), asPlainText(hover.text), box_.viewport(), word);
    return true;
}

int CodeHover::leftOfText() const {
    long left = box_.SendScintilla(Sci::SCI_GETMARGINLEFT);
    const long margins = box_.SendScintilla(Sci::SCI_GETMARGINS);
    for (long margin = 0; margin < margins; ++margin)
        left += box_.SendScintilla(Sci::SCI_GETMARGINWIDTHN, static_cast<uintptr_t>(margin));
    return static_cast<int>(left);
}

}  // namespace kav

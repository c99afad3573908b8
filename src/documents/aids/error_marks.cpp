// SPDX-License-Identifier: GPL-3.0-or-later
// The errors of the last build, beside their lines.
#include "documents/aids/error_marks.h"

#include "documents/aids/margins.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"

#include <algorithm>

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace kav {

using Sci = QsciScintillaBase;

namespace {

constexpr std::uintptr_t kErrorMarker = 0;
constexpr std::uintptr_t kMargins = 5;  // that the text box has, most of them without width

}  // namespace

ErrorMarks::ErrorMarks(TextBox& box) : TextAid(box) {
    box_.SendScintilla(Sci::SCI_SETMARGINTYPEN, kErrorMargin, static_cast<intptr_t>(Sci::SC_MARGIN_COLOUR));
    box_.SendScintilla(Sci::SCI_SETMARGINMASKN, kErrorMargin, static_cast<intptr_t>(1U << kErrorMarker));
    box_.SendScintilla(Sci::SCI_MARKERDEFINE, kErrorMarker, static_cast<intptr_t>(Sci::SC_MARK_CIRCLE));
    box_.viewport()->installEventFilter(this);
    connect(&box_, &TextBox::replacing, this, &ErrorMarks::noteErrors);
    connect(&box_, &Sci::SCN_MODIFIED, this, [this](int position, int type, const char*, int length) {
        const bool whole = position == 0 && static_cast<std::size_t>(length) == box_.byteLength();
        if ((type & Sci::SC_MOD_BEFOREDELETE) != 0 && whole) noteErrors();
    });
    connect(&box_, &TextBox::changed, this, &ErrorMarks::putBackErrors);
    connect(&box_, &Sci::SCN_ZOOM, this, &ErrorMarks::fitWidth);
}

void ErrorMarks::show(const std::vector<LineError>& errors) {
    box_.SendScintilla(Sci::SCI_MARKERDELETEALL, kErrorMarker);
    messages_.clear();
    noted_.reset();
    for (const LineError& error : errors)
        mark(error);
    fitWidth();
}

void ErrorMarks::mark(const LineError& error) {
    if (error.line < 1) return;
    const int line = std::min(error.line, box_.lines()) - 1;
    const long handle = box_.SendScintilla(Sci::SCI_MARKERADD, static_cast<uintptr_t>(line),
                                           static_cast<intptr_t>(kErrorMarker));
    messages_[static_cast<int>(handle)] = error.message;
}

void ErrorMarks::fitWidth() {
    const long width = messages_.empty() ? 0 : box_.SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL);
    box_.SendScintilla(Sci::SCI_SETMARGINWIDTHN, kErrorMargin, static_cast<intptr_t>(width));
}

void ErrorMarks::applyColours(const AidColours& colours) {
    box_.SendScintilla(Sci::SCI_SETMARGINBACKN, kErrorMargin, static_cast<intptr_t>(colours.marginPaper));
    box_.SendScintilla(Sci::SCI_MARKERSETFORE, kErrorMarker, static_cast<intptr_t>(colours.errorMark));
    box_.SendScintilla(Sci::SCI_MARKERSETBACK, kErrorMarker, static_cast<intptr_t>(colours.errorMark));
    fitWidth();
}

std::vector<LineError> ErrorMarks::errorsShown() const {
    std::vector<LineError> errors;
    for (const auto& [handle, message] : messages_) {
        const long line = box_.SendScintilla(Sci::SCI_MARKERLINEFROMHANDLE, static_cast<uintptr_t>(handle));
        if (line >= 0) errors.push_back({static_cast<int>(line) + 1, message});
    }
    return errors;
}

std::string ErrorMarks::messagesAt(int line) const {
    std::string messages;
    for (const LineError& error : errorsShown()) {
        if (error.line != line) continue;
        if (!messages.empty()) messages += '\n';
        messages += error.message;
    }
    return messages;
}

void ErrorMarks::noteErrors() {
    if (!messages_.empty() && !noted_) noted_ = errorsShown();
}

/// Deleting the whole text pushes all marks into the first line, which is not where they belong in a text
/// that was rewritten. Those whose line is gone go with it.
void ErrorMarks::putBackErrors() {
    if (!noted_) return;
    std::vector<LineError> errors = std::move(*noted_);
    std::erase_if(errors, [this](const LineError& error) { return error.line > box_.lines(); });
    show(errors);
}

bool ErrorMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && tellErrorsAt(*static_cast<QHelpEvent*>(event))) return true;
    return TextAid::eventFilter(watched, event);
}

bool ErrorMarks::tellErrorsAt(const QHelpEvent& event) {
    const std::optional<int> line = lineWhoseMarginIsAt(event.pos());
    const std::string messages = line ? messagesAt(*line) : std::string();
    if (messages.empty()) return false;
    // As rich text a long message is wrapped; what it quotes from the source is text all the same.
    QToolTip::showText(event.globalPos(), Qt::convertFromPlainText(shown(messages), Qt::WhiteSpaceNormal),
                       box_.viewport());
    return true;
}

std::optional<int> ErrorMarks::lineWhoseMarginIsAt(const QPoint& point) const {
    long width = 0;
    for (std::uintptr_t margin = 0; margin < kMargins; ++margin)
        width += box_.SendScintilla(Sci::SCI_GETMARGINWIDTHN, margin);
    if (point.x() >= width) return std::nullopt;
    const long position = box_.SendScintilla(Sci::SCI_POSITIONFROMPOINT, static_cast<uintptr_t>(point.x()),
                                             static_cast<intptr_t>(point.y()));
    const long top = box_.SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, position);
    // Below the last line there is none.
    if (point.y() >= top + box_.SendScintilla(Sci::SCI_TEXTHEIGHT, 0UL)) return std::nullopt;
    const long line = box_.SendScintilla(Sci::SCI_LINEFROMPOSITION, static_cast<uintptr_t>(position));
    return static_cast<int>(line) + 1;
}

}  // namespace kav

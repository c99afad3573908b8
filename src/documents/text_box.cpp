// SPDX-License-Identifier: GPL-3.0-or-later
// The text box of a document window: bytes in, bytes out.
#include "documents/text_box.h"

#include "platform/desktop/clipboard_text.h"
#include "platform/desktop/dropped_files.h"

#include <algorithm>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>

namespace kav {

namespace {

constexpr int kSmallestFont = 6;
constexpr int kUsualFont = 12;
constexpr int kLargestFont = 96;

/// Points for the size that the preferences give. Zero is what a size that is no number reads as.
int legibleSize(int size) {
    return size < 1 ? kUsualFont : std::clamp(size, kSmallestFont, kLargestFont);
}

/// Alt with a letter is no text: it belongs to menus and window managers. With Control beside it, it is how
/// some systems send a keyboard's third level, which is text.
bool isAltWithLetter(const QKeyEvent& event) {
    const bool altAlone =
        event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier);
    return altAlone && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Leaves a drag of files to the windows around; false when it is none.
bool leavesFiles(QDropEvent& event) {
    if (droppedFiles(*event.mimeData()).isEmpty()) return false;
    event.ignore();
    return true;
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QsciScintilla(parent) {
    setObjectName("txt");
    setUtf8(true);
    setEolMode(EolWindows);
    setMarginWidth(1, 0);
    setFrameShape(QFrame::NoFrame);
    // A little room between the margin and the text.
    constexpr intptr_t kTextMargin = 4;
    SendScintilla(SCI_SETMARGINLEFT, 0UL, kTextMargin);
    // The horizontal scroll bar follows the longest line seen, rather than a fixed width.
    SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);

    changeNotice_.setSingleShot(true);
    changeNotice_.setInterval(0);
    connect(&changeNotice_, &QTimer::timeout, this, &TextBox::sendChanged);
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int, int modificationType) { noteModification(modificationType); });
}

std::string TextBox::bytes() const {
    std::string text(byteLength(), '\0');
    // The text box writes a NUL behind the last byte, where the string keeps one anyway.
    SendScintilla(SCI_GETTEXT, static_cast<uintptr_t>(text.size() + 1), static_cast<void*>(text.data()));
    return text;
}

std::string TextBox::bytesBetween(std::size_t start, std::size_t end) const {
    std::string text(end - start, '\0');
    SendScintilla(SCI_GETTEXTRANGE, static_cast<long>(start), static_cast<long>(end), text.data());
    return text;
}

std::size_t TextBox::byteLength() const {
    return static_cast<std::size_t>(SendScintilla(SCI_GETLENGTH));
}

void TextBox::setBytes(std::string_view text) {
    emit replacing();
    // The text box would tell of the modification with copies of the text, some of them converted.
    const auto told = static_cast<uintptr_t>(SendScintilla(SCI_GETMODEVENTMASK));
    SendScintilla(SCI_SETMODEVENTMASK, 0UL);
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    SendScintilla(SCI_CLEARALL);
    SendScintilla(SCI_ADDTEXT, static_cast<uintptr_t>(text.size()), text.data());
    SendScintilla(SCI_SETUNDOCOLLECTION, 1UL);
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    SendScintilla(SCI_GOTOPOS, 0UL);
    SendScintilla(SCI_SETMODEVENTMASK, told);
    emit touched();
    emit linesChanged();
    sendChanged();
}

std::size_t TextBox::selStart() const {
    return static_cast<std::size_t>(SendScintilla(SCI_GETSELECTIONSTART));
}

std::size_t TextBox::selLength() const {
    return static_cast<std::size_t>(SendScintilla(SCI_GETSELECTIONEND)) - selStart();
}

std::string TextBox::selText() const {
    const std::size_t start = selStart();
    const std::size_t length = selLength();
    if (length == 0) return {};
    const auto* text = reinterpret_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
    return {text + start, length};
}

TextPlace TextBox::placeOf(std::size_t position) const {
    const long line = SendScintilla(SCI_LINEFROMPOSITION, static_cast<uintptr_t>(position));
    const long start = SendScintilla(SCI_POSITIONFROMLINE, static_cast<uintptr_t>(line));
    return {static_cast<int>(line), position - static_cast<std::size_t>(start)};
}

QPoint TextBox::pointAt(std::size_t position) const {
    const auto at = static_cast<intptr_t>(position);
    return {static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, at)),
            static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, at))};
}

int TextBox::lineHeight() const {
    return static_cast<int>(SendScintilla(SCI_TEXTHEIGHT, 0UL));
}

void TextBox::setSelStart(std::size_t start) {
    SendScintilla(SCI_GOTOPOS, static_cast<uintptr_t>(std::min(start, byteLength())));
}

void TextBox::setSelLength(std::size_t length) {
    const std::size_t start = selStart();
    const std::size_t end = start + std::min(length, byteLength() - start);
    SendScintilla(SCI_SETSEL, static_cast<uintptr_t>(start), static_cast<intptr_t>(end));
}

void TextBox::replaceSelection(std::string_view text) {
    const std::size_t start = selStart();
    replaceRange(start, selLength(), text);
    setSelStart(start + text.size());
    if (changeNotice_.isActive()) sendChanged();
}

void TextBox::rewrite(std::string_view text, std::size_t start) {
    replaceRange(0, byteLength(), text);
    setSelStart(start);
    if (changeNotice_.isActive()) sendChanged();
}

void TextBox::replaceRange(std::size_t start, std::size_t length, std::string_view text) {
    SendScintilla(SCI_BEGINUNDOACTION);
    SendScintilla(SCI_SETTARGETRANGE, static_cast<uintptr_t>(start), static_cast<intptr_t>(start + length));
    // The text box wants an address even where there is nothing to read.
    SendScintilla(SCI_REPLACETARGET, static_cast<uintptr_t>(text.size()), text.empty() ? "" : text.data());
    SendScintilla(SCI_ENDUNDOACTION);
}

void TextBox::setTextFont(const std::string& name, int size) {
    SendScintilla(SCI_STYLESETFONT, static_cast<uintptr_t>(STYLE_DEFAULT), name.c_str());
    SendScintilla(SCI_STYLESETSIZE, static_cast<uintptr_t>(STYLE_DEFAULT),
                  static_cast<intptr_t>(legibleSize(size)));
    applyToAllStyles();
}

void TextBox::setTextItalic(bool italic) {
    SendScintilla(SCI_STYLESETITALIC, static_cast<uintptr_t>(STYLE_DEFAULT), static_cast<intptr_t>(italic));
    applyToAllStyles();
}

void TextBox::setTextBold(bool bold) {
    SendScintilla(SCI_STYLESETBOLD, static_cast<uintptr_t>(STYLE_DEFAULT), static_cast<intptr_t>(bold));
    applyToAllStyles();
}

void TextBox::applyToAllStyles() {
    SendScintilla(SCI_STYLECLEARALL);
    emit stylesReset();
}

void TextBox::setTextColours(std::uint32_t text, std::uint32_t paper) {
    SendScintilla(SCI_STYLESETFORE, static_cast<uintptr_t>(STYLE_DEFAULT), static_cast<intptr_t>(text));
    SendScintilla(SCI_STYLESETBACK, static_cast<uintptr_t>(STYLE_DEFAULT), static_cast<intptr_t>(paper));
    SendScintilla(SCI_STYLECLEARALL);
    SendScintilla(SCI_SETCARETFORE, static_cast<uintptr_t>(text));
    setSelectionForegroundColor(palette().color(QPalette::HighlightedText));
    setSelectionBackgroundColor(palette().color(QPalette::Highlight));
}

void TextBox::releaseKey(const QKeySequence& key) {
    const QKeyCombination combination = key[0];
    if (QsciCommand* command = standardCommands()->boundTo(combination.toCombined())) command->setKey(0);
}

void TextBox::cut() {
    copy();
    replaceSelection({});
}

void TextBox::copy() {
    if (selLength() == 0) return;
    QGuiApplication::clipboard()->setMimeData(mimeDataOf(selText()));
}

void TextBox::paste() {
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    if (content != nullptr) replaceSelection(textOf(*content));
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cut)) {
        cut();
    } else if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (isAltWithLetter(*event)) {
        event->ignore();
    } else {
        QsciScintilla::keyPressEvent(event);
    }
}

void TextBox::dragEnterEvent(QDragEnterEvent* event) {
    if (!leavesFiles(*event)) QsciScintilla::dragEnterEvent(event);
}

void TextBox::dragMoveEvent(QDragMoveEvent* event) {
    if (!leavesFiles(*event)) QsciScintilla::dragMoveEvent(event);
}

void TextBox::dropEvent(QDropEvent* event) {
    if (leavesFiles(*event)) return;
    // The text box's own way with dropped text changes line ends and stops at NUL bytes.
    const std::string text = textOf(*event->mimeData());
    const QPoint place = event->position().toPoint();
    auto target = static_cast<std::size_t>(SendScintilla(
        SCI_POSITIONFROMPOINT, static_cast<uintptr_t>(place.x()), static_cast<intptr_t>(place.y())));
    const std::size_t start = selStart();
    const std::size_t length = selLength();
    const bool isMove = event->source() == this && event->proposedAction() == Qt::MoveAction;
    QDragLeaveEvent noLongerOver;
    QsciScintilla::dragLeaveEvent(&noLongerOver);
    event->acceptProposedAction();
    if (isMove && target >= start && target <= start + length) return;

    SendScintilla(SCI_BEGINUNDOACTION);
    if (isMove) {
        replaceRange(start, length, {});
        if (target > start) target -= length;
    }
    replaceRange(target, 0, text);
    SendScintilla(SCI_ENDUNDOACTION);
    setSelStart(target);
    setSelLength(text.size());
}

QByteArray TextBox::fromMimeData(const QMimeData* source, bool& rectangular) const {
    rectangular = false;
    const std::string text = textOf(*source);
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QMimeData* TextBox::toMimeData(const QByteArray& text, bool /*rectangular*/) const {
    return mimeDataOf(text.toStdString());
}

void TextBox::noteModification(int modificationType) {
    if ((modificationType & (SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT)) == 0) return;
    Tag = "1";
    emit touched();
    changeNotice_.start();
}

void TextBox::sendChanged() {
    changeNotice_.stop();
    Tag = "1";
    emit changed();
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// A list of the words that may be meant by one that is begun.
#include "documents/aids/completion_list.h"

#include "documents/aids/program_watch.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"

#include <algorithm>

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>

namespace kav {

namespace {

using Sci = QsciScintillaBase;

constexpr int kMostRows = 10;

QListWidget* makeList(QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName("completions");
    list->setFocusPolicy(Qt::NoFocus);
    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list->setFrameShape(QFrame::StyledPanel);
    list->setAutoFillBackground(true);
    return list;
}

/// The text box is no longer where it was, or no longer has the keyboard.
bool takesTextAway(const QEvent& event) {
    return event.type() == QEvent::FocusOut || event.type() == QEvent::Hide || event.type() == QEvent::Move ||
           event.type() == QEvent::Resize;
}

}  // namespace

CompletionList::CompletionList(TextBox& box, QWidget& document, const ProgramWatch& program)
    : TextAid(box), document_(document), program_(program) {
    connect(&box_, &Sci::SCN_CHARADDED, this,
            [this] { offer(isShown() ? cause_ : CompletionCause::Typing); });
    connect(&box_, &Sci::SCN_UPDATEUI, this, &CompletionList::follow);
    box_.installEventFilter(this);
    document.installEventFilter(this);
}

CompletionList::~CompletionList() {
    delete list_;
}

bool CompletionList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &box_ && event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    if ((watched == &box_ || watched == &document_) && takesTextAway(*event)) hide();
    return TextAid::eventFilter(watched, event);
}

void CompletionList::offer(CompletionCause cause) {
    const auto caret = static_cast<std::size_t>(box_.SendScintilla(Sci::SCI_GETCURRENTPOS));
    const TextPlace place = box_.placeOf(caret);
    const std::string line = startOfLine(place.line).text;
    Completions completions = completionsAt(line, place.column, program_.latest(), cause);
    if (completions.words.empty() || box_.selLength() > 0) return hide();
    cause_ = cause;
    caret_ = caret;
    wordStart_ = caret - place.column + completions.begin;
    words_ = std::move(completions.words);
    show();
}

/// The caret has moved or the text was scrolled: the list goes along within its word, and ends outside.
void CompletionList::follow(int updated) {
    if (!isShown()) return;
    const auto caret = static_cast<std::size_t>(box_.SendScintilla(Sci::SCI_GETCURRENTPOS));
    if (caret != caret_) {
        const std::size_t wordStart = wordStart_;
        offer(cause_);
        if (wordStart_ != wordStart) hide();
    } else if ((updated & (Sci::SC_UPDATE_V_SCROLL | Sci::SC_UPDATE_H_SCROLL)) != 0) {
        place();
    }
}

void CompletionList::show() {
    if (list_ == nullptr) {
        list_ = makeList(box_.window());
        connect(list_, &QListWidget::itemClicked, this, &CompletionList::accept);
    }
    list_->clear();
    for (const std::string& word : words_)
        list_->addItem(shown(word));
    list_->setCurrentRow(cause_ == CompletionCause::Asking ? 0 : -1);
    place();
    list_->show();
    list_->raise();
}

/// Below the begun word, or above it where there is more room.
void CompletionList::place() {
    const QWidget& window = *list_->parentWidget();
    const int frame = 2 * list_->frameWidth();
    const int rows = std::min(list_->count(), kMostRows);
    const int barWidth = list_->count() > rows ? list_->verticalScrollBar()->sizeHint().width() : 0;
    const int height = std::min(rows * list_->sizeHintForRow(0) + frame, window.height());
    const int width = std::min(list_->sizeHintForColumn(0) + barWidth + frame, window.width());
    const QPoint word = box_.viewport()->mapTo(&window, box_.pointAt(wordStart_));
    const int below = word.y() + box_.lineHeight();
    const bool fitsBelow = below + height <= window.height() || word.y() < window.height() - below;
    const int top = fitsBelow ? std::min(below, window.height() - height) : word.y() - height;
    const int left = std::clamp(word.x(), 0, window.width() - width);
    list_->setGeometry(left, std::max(top, 0), width, height);
}

void CompletionList::hide() {
    if (list_ != nullptr) list_->hide();
}

bool CompletionList::isShown() const {
    return list_ != nullptr && list_->isVisible();
}

/// True when the key was for the list and must not reach the text.
bool CompletionList::handleKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier) {
        offer(CompletionCause::Asking);
        return true;
    }
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isShown() && isPlain && handleKeyInList(event);
}

bool CompletionList::handleKeyInList(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Down:
            move(1);
            return true;
        case Qt::Key_Up:
            move(-1);
            return true;
        case Qt::Key_Escape:
            hide();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
            if (list_->currentRow() < 0) {
                hide();
                return false;
            }
            accept();
            return true;
        default:
            return false;
    }
}

void CompletionList::move(int step) {
    const int count = list_->count();
    const int row = list_->currentRow();
    const int outside = step > 0 ? -1 : count;
    list_->setCurrentRow(std::clamp((row < 0 ? outside : row) + step, 0, count - 1));
}

/// Puts the current word in place of the begun one, in one step of undo.
void CompletionList::accept() {
    const std::string word = words_[static_cast<std::size_t>(list_->currentRow())];
    hide();
    const auto caret = static_cast<std::size_t>(box_.SendScintilla(Sci::SCI_GETCURRENTPOS));
    if (caret != caret_) return;
    box_.setSelStart(wordStart_);
    box_.setSelLength(caret - wordStart_);
    if (box_.selText() == word) {
        box_.setSelStart(caret);
    } else {
        box_.replaceSelection(word);
    }
}

}  // namespace kav

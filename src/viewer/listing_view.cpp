// SPDX-License-Identifier: GPL-3.0-or-later
// A listing as text, with its errors on a coloured background.
#include "viewer/listing_view.h"

#include "viewer/colours.h"

#include <algorithm>
#include <utility>

#include <QFontDatabase>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

namespace kav::viewer {

ListingView::ListingView(QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName("listing");
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setPalette(withLastingSelection(palette()));
}

void ListingView::showListing(const QString& text, std::vector<std::size_t> marked) {
    marked_ = std::move(marked);
    setPlainText(text);
}

void ListingView::goToLine(std::size_t line) {
    const QTextCursor cursor(document()->findBlockByNumber(static_cast<int>(line)));
    setTextCursor(cursor);
    centerCursor();
    QTextEdit::ExtraSelection current;
    current.cursor = cursor;
    current.format.setBackground(currentErrorBackground(palette()));
    current.format.setProperty(QTextFormat::FullWidthSelection, true);
    setExtraSelections({current});
}

bool ListingView::isMarked(std::size_t line) const {
    return std::binary_search(marked_.begin(), marked_.end(), line);
}

void ListingView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        const QColor background = errorBackground(palette());
        QTextBlock block = firstVisibleBlock();
        while (block.isValid()) {
            const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
            if (place.top() > event->rect().bottom()) break;
            if (isMarked(static_cast<std::size_t>(block.blockNumber()))) {
                painter.fillRect(QRectF(0, place.top(), viewport()->width(), place.height()), background);
            }
            block = block.next();
        }
    }
    QPlainTextEdit::paintEvent(event);
}

}  // namespace kav::viewer

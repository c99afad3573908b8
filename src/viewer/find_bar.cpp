// SPDX-License-Identifier: GPL-3.0-or-later
// The bar at the bottom of a window that finds a text in what the window shows.
#include "viewer/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace kav::viewer {

namespace {

QToolButton* button(FindBar* bar, const QString& name, const QString& text, const QString& keys) {
    auto* made = new QToolButton(bar);
    made->setObjectName(name);
    made->setText(text);
    made->setToolTip(keys);
    made->setAutoRaise(true);
    return made;
}

}  // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent), line_(new QLineEdit(this)), verdict_(new QLabel(this)) {
    setObjectName("findBar");
    line_->setObjectName("findText");
    line_->setPlaceholderText("Find in this text");
    line_->setClearButtonEnabled(true);
    verdict_->setObjectName("findVerdict");
    auto* previous = button(this, "findPrevious", "Previous", "Shift+F3");
    auto* next = button(this, "findNext", "Next", "F3 or Enter");
    auto* close = button(this, "findClose", "Close", "Esc");

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->addWidget(new QLabel("Find:", this));
    row->addWidget(line_, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(verdict_);
    row->addStretch(1);
    row->addWidget(close);

    connect(line_, &QLineEdit::textEdited, this, &FindBar::typed);
    connect(line_, &QLineEdit::returnPressed, this, &FindBar::nextWanted);
    connect(next, &QToolButton::clicked, this, &FindBar::nextWanted);
    connect(previous, &QToolButton::clicked, this, &FindBar::previousWanted);
    connect(close, &QToolButton::clicked, this, &FindBar::closed);
    hide();
}

void FindBar::open(const QString& text) {
    if (!text.isEmpty()) line_->setText(text);
    verdict_->clear();
    show();
    line_->setFocus();
    line_->selectAll();
}

QString FindBar::text() const {
    return line_->text();
}

void FindBar::tell(bool found) {
    verdict_->setText(found || text().isEmpty() ? QString() : "Not found");
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit closed();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// The window that shows a listing and leads from error to error.
#include "viewer/listing_window.h"

#include "viewer/text_finder.h"
#include "viewer/window_actions.h"

#include <QListWidget>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace kav::viewer {

namespace {

QString errorText(const ListingError& error) {
    return QString("Line %1: %2").arg(error.sourceLine).arg(QString::fromStdString(error.message));
}

}  // namespace

ListingWindow::ListingWindow(const QString& title, const std::string& bytes)
    : view_(new ListingView(this)), errorList_(new QListWidget(this)), findBar_(new FindBar(this)) {
    setObjectName("Viewer");
    setWindowTitle(title);
    resize(900, 600);

    const std::string text = listingText(bytes);
    errors_ = errorsOf(text);
    view_->showListing(QString::fromStdString(text), errors_.markedLines);
    makeErrorList();

    auto* split = new QSplitter(Qt::Vertical, this);
    split->addWidget(view_);
    split->addWidget(errorList_);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(split, 1);
    column->addWidget(findBar_);
    setCentralWidget(whole);

    makeActions();
    view_->setFocus();
    if (!errors_.errors.empty()) errorList_->setCurrentRow(0);
}

void ListingWindow::makeActions() {
    QToolBar* bar = makeToolBar(*this);
    addCommand(*this, *bar, "nextError", "Next Error", {Qt::Key_F4}, [this] {
        goToError(false);
    })->setEnabled(!errors_.errors.empty());
    addCommand(*this, *bar, "previousError", "Previous Error", {Qt::SHIFT | Qt::Key_F4}, [this] {
        goToError(true);
    })->setEnabled(!errors_.errors.empty());
    bar->addSeparator();
    addCommand(*this, *bar, "find", "Find...", {QKeySequence::Find},
               [this] { findBar_->open(view_->textCursor().selectedText()); });
    addZoomActions(*this, *bar, *view_);
    connectFindBar(*this, *findBar_, *view_);
    const auto count = errors_.errors.size();
    statusBar()->showMessage(
        count == 0   ? "No errors."
        : count == 1 ? "1 error. Red lines have it."
                     : QString("%1 errors. Red lines have them; F4 goes to the next.").arg(count));
}

void ListingWindow::makeErrorList() {
    errorList_->setObjectName("errors");
    errorList_->setWordWrap(true);
    for (const ListingError& error : errors_.errors)
        errorList_->addItem(errorText(error));
    errorList_->setVisible(!errors_.errors.empty());
    connect(errorList_, &QListWidget::currentRowChanged, this, &ListingWindow::showError);
    // A click on the current error leads back to it.
    connect(errorList_, &QListWidget::itemClicked, this, [this] { showError(errorList_->currentRow()); });
}

void ListingWindow::showError(int index) {
    if (index < 0) return;
    view_->goToLine(errors_.errors[static_cast<std::size_t>(index)].shownAt);
}

void ListingWindow::goToError(bool backward) {
    if (errors_.errors.empty()) return;
    const int row = errorList_->currentRow();
    const std::size_t count = errors_.errors.size();
    const std::size_t current = row < 0 ? count : static_cast<std::size_t>(row);
    const std::size_t next = errorBeside(current, count, backward);
    errorList_->setCurrentRow(static_cast<int>(next));
    showError(static_cast<int>(next));  // also when it is the only one
}

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// The window that shows the help.
#include "viewer/help_window.h"

#include "viewer/colours.h"
#include "viewer/text_finder.h"
#include "viewer/window_actions.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kav::viewer {

namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr int kSideWidth = 260;

QIcon standardIcon(const QWidget& window, QStyle::StandardPixmap which) {
    return window.style()->standardIcon(which);
}

}  // namespace

HelpWindow::HelpWindow(const std::string& html)
    : book_(html),
      browser_(new HelpBrowser(book_, this)),
      words_(new QLineEdit(this)),
      contents_(new QTreeWidget(this)),
      results_(new QListWidget(this)),
      findBar_(new FindBar(this)) {
    setObjectName("Viewer");
    setWindowTitle("KAV Compiler Help");
    resize(1040, 720);

    auto* side = new QWidget(this);
    makeSide(side);
    auto* shown = new QWidget(this);
    auto* column = new QVBoxLayout(shown);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(browser_, 1);
    column->addWidget(findBar_);
    auto* split = new QSplitter(this);
    split->addWidget(side);
    split->addWidget(shown);
    split->setStretchFactor(1, 1);
    split->setSizes({kSideWidth, width() - kSideWidth});
    split->setChildrenCollapsible(false);
    setCentralWidget(split);

    browser_->setPalette(withLastingSelection(browser_->palette()));
    makeActions();
    fillContents();
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::followPage);
    if (!book_.pages().empty()) browser_->showPage(0);
    browser_->setFocus();
}

void HelpWindow::makeSide(QWidget* side) {
    words_->setObjectName("words");
    words_->setPlaceholderText("Search all pages (Ctrl+K)");
    words_->setClearButtonEnabled(true);
    words_->installEventFilter(this);
    contents_->setObjectName("contents");
    contents_->setHeaderHidden(true);
    contents_->setRootIsDecorated(false);
    contents_->setIndentation(12);
    results_->setObjectName("results");
    results_->setWordWrap(true);
    results_->setAlternatingRowColors(true);
    results_->setSpacing(3);
    results_->hide();
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(4, 4, 0, 0);
    column->addWidget(words_);
    column->addWidget(contents_, 1);
    column->addWidget(results_, 1);

    connect(words_, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(words_, &QLineEdit::returnPressed, this, [this] { openHit(0); });
    connect(results_, &QListWidget::itemClicked, this, [this] { openHit(results_->currentRow()); });
    connect(results_, &QListWidget::itemActivated, this, [this] { openHit(results_->currentRow()); });
    const auto openPage = [this](QTreeWidgetItem* item) {
        const QVariant page = item->data(0, kPageRole);
        if (page.isValid()) browser_->showPage(page.toULongLong());
    };
    connect(contents_, &QTreeWidget::itemClicked, this, openPage);
    connect(contents_, &QTreeWidget::itemActivated, this, openPage);
}

/// In the line for words, Down goes into the pages that were found and Escape brings the contents back.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == words_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) words_->clear();
        if (key == Qt::Key_Down && !hits_.empty()) {
            results_->setFocus();
            results_->setCurrentRow(0);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void HelpWindow::makeActions() {
    QToolBar* bar = makeToolBar(*this);
    QAction* back =
        addCommand(*this, *bar, "back", "Back", {QKeySequence("Alt+Left")}, [this] { browser_->backward(); });
    back->setIcon(standardIcon(*this, QStyle::SP_ArrowBack));
    back->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QAction* forward = addCommand(*this, *bar, "forward", "Forward", {QKeySequence("Alt+Right")},
                                  [this] { browser_->forward(); });
    forward->setIcon(standardIcon(*this, QStyle::SP_ArrowForward));
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    addCommand(*this, *bar, "home", "Contents", {QKeySequence("Alt+Home")}, [this] {
        if (!book_.pages().empty()) browser_->showPage(0);
    });
    bar->addSeparator();
    addCommand(*this, *bar, "previousPage", "Previous Page", {QKeySequence("Ctrl+PgUp")},
               [this] { turnPage(-1); });
    addCommand(*this, *bar, "nextPage", "Next Page", {QKeySequence("Ctrl+PgDown")}, [this] { turnPage(1); });
    bar->addSeparator();
    addCommand(*this, *bar, "find", "Find...", {QKeySequence::Find},
               [this] { findBar_->open(browser_->textCursor().selectedText()); });
    addCommand(*this, *bar, "search", "Search All", {QKeySequence("Ctrl+K"), QKeySequence("Ctrl+Shift+F")},
               [this] {
                   words_->setFocus();
                   words_->selectAll();
               });
    addZoomActions(*this, *bar, *browser_);
    connectFindBar(*this, *findBar_, *browser_);
    connect(findBar_, &FindBar::typed, browser_, [this] { browser_->markAll(findBar_->text()); });
    connect(findBar_, &FindBar::closed, browser_, [this] { browser_->markAll({}); });
}

void HelpWindow::fillContents() {
    QTreeWidgetItem* heading = nullptr;
    for (const ContentsEntry& entry : book_.contents()) {
        const bool under = entry.page && heading != nullptr;
        auto* item = under ? new QTreeWidgetItem(heading) : new QTreeWidgetItem(contents_);
        item->setText(0, QString::fromStdString(entry.title));
        if (entry.page) {
            item->setData(0, kPageRole, QVariant::fromValue<qulonglong>(*entry.page));
            continue;
        }
        heading = item;
        QFont bold = item->font(0);
        bold.setBold(true);
        item->setFont(0, bold);
        item->setFlags(Qt::ItemIsEnabled);
    }
    contents_->expandAll();
}

void HelpWindow::search(const QString& words) {
    hits_ = searchBook(book_, words.toStdString());
    results_->clear();
    for (const SearchHit& hit : hits_) {
        const QString title = QString::fromStdString(book_.pages()[hit.page].title);
        results_->addItem(title + "\n" + QString::fromStdString(hit.excerpt));
    }
    const bool searching = !words.trimmed().isEmpty();
    if (searching && hits_.empty()) {
        results_->addItem("No page has these words.");
        results_->item(0)->setFlags(Qt::NoItemFlags);
    }
    results_->setVisible(searching);
    contents_->setVisible(!searching);
    if (!searching) browser_->markAll({});
}

void HelpWindow::openHit(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= hits_.size()) return;
    const SearchHit& hit = hits_[static_cast<std::size_t>(row)];
    const QString found = QString::fromStdString(hit.found);
    results_->setCurrentRow(row);
    browser_->showPage(hit.page);
    browser_->moveCursor(QTextCursor::Start);
    findIn(*browser_, found, FindFrom::Next);
    browser_->markAll(found);
}

void HelpWindow::turnPage(int by) {
    const auto page = static_cast<std::ptrdiff_t>(browser_->page()) + by;
    if (page < 0 || page >= static_cast<std::ptrdiff_t>(book_.pages().size())) return;
    browser_->showPage(static_cast<std::size_t>(page));
}

/// Names the page that comes to be shown in the title, and marks it in the contents.
void HelpWindow::followPage(const QUrl& address) {
    const std::size_t page = browser_->pageAt(address);
    setWindowTitle(QString::fromStdString(book_.pages()[page].title) +
                   (page == 0 ? "" : " - KAV Compiler Help"));
    contents_->setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator item(contents_); *item != nullptr; ++item) {
        const QVariant shown = (*item)->data(0, kPageRole);
        if (shown.isValid() && shown.toULongLong() == page) contents_->setCurrentItem(*item);
    }
}

}  // namespace kav::viewer

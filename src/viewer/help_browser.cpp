// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the pages of a help book and follows the links between them.
#include "viewer/help_browser.h"

#include "viewer/colours.h"

#include <QEvent>

namespace kav::viewer {

namespace {

constexpr int kMostMarks = 1000;
constexpr int kMargin = 14;  // around a page

QUrl addressOf(const HelpBook& book, const HelpPlace& place) {
    QUrl address("kavhelp:/" + QString::fromStdString(book.pages()[place.page].name));
    if (!place.anchor.empty()) address.setFragment(QString::fromStdString(place.anchor));
    return address;
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, QWidget* parent) : QTextBrowser(parent), book_(book) {
    setObjectName("page");
    document()->setDocumentMargin(kMargin);
    takeColours();
}

void HelpBrowser::takeColours() {
    document()->setDefaultStyleSheet(pageStyle(palette()));
}

void HelpBrowser::showPage(std::size_t page) {
    setSource(addressOf(book_, {page, {}}));
}

std::size_t HelpBrowser::pageAt(const QUrl& address) const {
    const auto place = book_.placeOf(address.path().mid(1).toStdString());
    return place ? place->page : 0;
}

void HelpBrowser::markAll(const QString& text) {
    QList<ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(foundBackground(palette()));
    QTextCursor found(document());
    while (!text.isEmpty() && marks.size() < kMostMarks) {
        found = document()->find(text, found);
        if (found.isNull()) break;
        marks.append({found, format});
    }
    setExtraSelections(marks);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& address) {
    if (type != QTextDocument::HtmlResource) return {};  // pictures are in the page: the document reads them
    const auto place = book_.placeOf(address.path().mid(1).toStdString());
    if (!place) return {};
    return QString::fromStdString(book_.pages()[place->page].html);
}

void HelpBrowser::doSetSource(const QUrl& address, QTextDocument::ResourceType type) {
    // A link names its place alone; the address that goes on record names the page too.
    const std::string anchor = address.fragment().toStdString();
    const auto place = book_.placeOf(anchor.empty() ? address.path().mid(1).toStdString() : anchor);
    if (!place) return;
    setExtraSelections({});
    QTextBrowser::doSetSource(addressOf(book_, *place), type);
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    takeColours();
    if (!source().isEmpty()) reload();
}

}  // namespace kav::viewer

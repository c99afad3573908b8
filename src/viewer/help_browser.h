// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the pages of a help book and follows the links between them.
#pragma once

#include "viewer/help_book.h"

#include <cstddef>

#include <QTextBrowser>
#include <QUrl>
#include <QVariant>

namespace kav::viewer {

/// A browser whose pages come from a book. Its addresses are "kavhelp:/PAGE#PLACE"; links in pages are
/// "#PLACE", and lead to whichever page has the place. Going back and forward is the toolkit's.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    HelpBrowser(const HelpBook& book, QWidget* parent);

    void showPage(std::size_t page);

    /// Index of the page that an address leads to; the first for one that leads nowhere.
    [[nodiscard]] std::size_t pageAt(const QUrl& address) const;

    /// Index of the page that is shown.
    [[nodiscard]] std::size_t page() const { return pageAt(source()); }

    /// Gives every place of the text on the page a background; an empty text takes them away.
    void markAll(const QString& text);

  protected:
    QVariant loadResource(int type, const QUrl& address) override;
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

  private:
    void takeColours();

    const HelpBook& book_;
};

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// The window that shows the help.
#pragma once

#include "viewer/find_bar.h"
#include "viewer/help_book.h"
#include "viewer/help_browser.h"
#include "viewer/help_search.h"

#include <cstddef>
#include <string>
#include <vector>

#include <QMainWindow>

class QAction;
class QLineEdit;
class QListWidget;
class QTreeWidget;

namespace kav::viewer {

/// The contents at the left, a page at the right. Words typed above the contents replace them by the pages
/// that have these words.
class HelpWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit HelpWindow(const std::string& html);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeSide(QWidget* side);
    void makeActions();
    void fillContents();
    void search(const QString& words);
    void openHit(int row);
    void turnPage(int by);
    void followPage(const QUrl& address);

    HelpBook book_;
    std::vector<SearchHit> hits_;
    HelpBrowser* browser_;
    QLineEdit* words_;
    QTreeWidget* contents_;
    QListWidget* results_;
    FindBar* findBar_;
};

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// The window that shows a listing and leads from error to error.
#pragma once

#include "viewer/find_bar.h"
#include "viewer/listing.h"
#include "viewer/listing_view.h"

#include <string>

#include <QMainWindow>

class QListWidget;

namespace kav::viewer {

/// Shows a text file as it is. When it is a listing with errors, their lines are marked, a list below tells
/// them, and F4 goes to the next one; the window opens on the first.
class ListingWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// `title` is the window's title, `bytes` the file's content.
    ListingWindow(const QString& title, const std::string& bytes);

    /// Brings the error after (or before) the current one into sight.
    void goToError(bool backward);

  private:
    void makeActions();
    void makeErrorList();
    void showError(int index);

    ListingErrors errors_;
    ListingView* view_;
    QListWidget* errorList_;
    FindBar* findBar_;
};

}  // namespace kav::viewer

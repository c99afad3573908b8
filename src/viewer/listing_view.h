// SPDX-License-Identifier: GPL-3.0-or-later
// A listing as text, with its errors on a coloured background.
#pragma once

#include "viewer/listing.h"

#include <cstddef>
#include <vector>

#include <QPlainTextEdit>
#include <QString>

namespace kav::viewer {

/// Shows plain text that cannot be changed, in letters of one width. The background of marked lines is
/// painted only where they can be seen, so that a listing of any length opens at once.
class ListingView : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit ListingView(QWidget* parent);

    /// Shows the text and marks its lines; `marked` is ascending, from 0 on.
    void showListing(const QString& text, std::vector<std::size_t> marked);

    /// Brings a line into the middle of the window and makes it stand out; lines count from 0.
    void goToLine(std::size_t line);

    [[nodiscard]] bool isMarked(std::size_t line) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<std::size_t> marked_;
};

}  // namespace kav::viewer

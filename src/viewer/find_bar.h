// SPDX-License-Identifier: GPL-3.0-or-later
// The bar at the bottom of a window that finds a text in what the window shows.
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;

namespace kav::viewer {

/// Asks for a text and for its next or previous place. Ctrl+F opens it, Enter and F3 go on, Shift+F3 goes
/// back, Escape closes it. Who owns it finds the text and tells whether it is there.
class FindBar : public QWidget {
    Q_OBJECT

  public:
    explicit FindBar(QWidget* parent);

    /// Shows the bar with the text, or with the last one when it is empty, ready to be typed over.
    void open(const QString& text = {});

    [[nodiscard]] QString text() const;

    /// Shows in the bar whether the text was found.
    void tell(bool found);

  signals:
    /// Find the text: the place at the cursor while it is typed, the next or the previous one after that.
    void typed();
    void nextWanted();
    void previousWanted();
    void closed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLineEdit* line_;
    QLabel* verdict_;
};

}  // namespace kav::viewer

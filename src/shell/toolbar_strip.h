// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip along the top of the main window.
#pragma once

#include <string>

#include <QWidget>

namespace kav {

class Workspace;

/// `Picture1`: one picture that x alone divides into regions. Pressing any mouse button runs the region's
/// menu entry, moving over it shows its help text in the status bar, where it stays.
class ToolbarStrip : public QWidget {
    Q_OBJECT

  public:
    ToolbarStrip(Workspace& workspace, QWidget* parent);

  signals:
    /// A mouse button was pressed over the region of the menu entry of that name.
    void pressed(const std::string& command);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    Workspace& workspace_;
};

}  // namespace kav

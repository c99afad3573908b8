// SPDX-License-Identifier: GPL-3.0-or-later
// The wizard for MirageOS programs.
#pragma once

#include "tools/drawing_window.h"
#include "tools/mirage_program.h"
#include "tools/monochrome_bitmap.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace kav {

/// "New MirageOS Program": the user paints the program's menu button, dragging with the left button to set
/// cells and with another to clear them, describes the program, and gets a skeleton as a new document. A
/// window that opens shows no cells until Refresh.
class Form1 : public DrawingWindow {
    Q_OBJECT

  public:
    Form1(Workspace& workspace, QWidget* owner, ButtonBitmap& button);

    void selectKind(MirageKind kind);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void Command1_Click();
    void Command2_Click();
    void Option2_Toggled(bool withExitCode);

    void placeControls();
    /// Paints the cell under the pointer. A place beyond the grid is a failure, reported under the handler.
    void paintCell(const QMouseEvent& event, const char* handler);
    void showCell(Cell cell, bool set);
    void drawCell(Cell cell);
    void newProgram(MirageKind kind);

    ButtonBitmap& button_;
    bool buttonIsDown_ = false;
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QLabel* Label2 = nullptr;
    QCheckBox* Check1 = nullptr;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
};

}  // namespace kav

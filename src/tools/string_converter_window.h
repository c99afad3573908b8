// SPDX-License-Identifier: GPL-3.0-or-later
// The string converter.
#pragma once

#include "tools/tool_window.h"

class QCheckBox;
class QRadioButton;

namespace kav {

class PlainTextBox;

/// "String Converter": text typed or pasted on the left becomes ".db" lines on the right, as quoted strings
/// or compressed with VCode, for the clipboard or the active document.
class StrConv : public ToolWindow {
    Q_OBJECT

  public:
    StrConv(Workspace& workspace, QWidget* owner);

  private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    void layOut();
    void convert();

    PlainTextBox* inp;
    PlainTextBox* out;
    QCheckBox* vcode;
    QCheckBox* zero;
    QRadioButton* spaced;
    QRadioButton* tabbed;
};

}  // namespace kav

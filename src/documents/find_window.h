// SPDX-License-Identifier: GPL-3.0-or-later
// Searches the active document and replaces in it.
#pragma once

#include <string>

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace kav {

class Workspace;

/// "Find": each press of Find selects the next match; Replace All replaces every match from the search
/// position on. The search position lives as long as the window, which ends when it is closed.
class find : public QDialog {
    Q_OBJECT

  public:
    /// `owner` is the main window, above which this window stays.
    find(Workspace& workspace, QWidget* owner);

  private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

    void findNext();
    void replaceEveryMatch();

    QLineEdit* addBox(const char* name);
    QPushButton* addButton(const char* name, const char* caption, void (find::*handler)());
    void layOut();
    /// The search position is a field of the window, though not a visible one.
    [[nodiscard]] std::size_t searchPosition() const;
    void setSearchPosition(std::size_t position);

    Workspace& workspace_;
    QLineEdit* find_;
    QLineEdit* rep;
    QLineEdit* strt;
    QCheckBox* cse;
};

}  // namespace kav

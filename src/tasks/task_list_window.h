// SPDX-License-Identifier: GPL-3.0-or-later
// The checklist of notes and errors, each tied to a line of a document.
#pragma once

#include "tasks/task_list.h"

#include <cstdint>
#include <string>

#include <QTimer>
#include <QWidget>

class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace kav {

class Workspace;

/// "Task List": tasks can be added, ticked, edited and deleted, and lead to their lines. Lives as long as
/// the program; closing the window hides it.
class dbgr : public QWidget {
    Q_OBJECT

  public:
    /// `owner` is the main window, above which the list stays.
    dbgr(Workspace& workspace, QWidget* owner);

    /// Adds a task at the end. The colour has red in the low byte; 0 is the default colour.
    void addTask(const std::string& text, const std::string& tag, std::uint32_t colour);

    /// Shows the window and brings it to the front.
    void showList();

    [[nodiscard]] const TaskList& tasks() const { return tasks_; }

  signals:
    /// The window is shown or hidden now, whoever did it.
    void visibilityChanged(bool visible);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void TreeView1_NodeClick(std::size_t index);
    void dorest_Timer();

    QLineEdit* addBox(const char* name);
    QPushButton* addButton(const char* name, const char* caption, void (dbgr::*handler)());
    void layOut();
    void connectTree();
    /// 1-based index of the selected task, 0 when none is.
    [[nodiscard]] std::size_t selectedIndex() const;
    /// Shows the tasks as they are now, with the given one selected, or the last when there are fewer.
    void showTasks(std::size_t selected);
    void showTask(std::size_t index);

    Workspace& workspace_;
    TaskList tasks_;
    QTreeWidget* TreeView1;
    QLineEdit* Text1;
    QLineEdit* Text2;
    QLineEdit* Text3;
    QTimer dorest;
};

}  // namespace kav

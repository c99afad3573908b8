// SPDX-License-Identifier: GPL-3.0-or-later
// The checklist of notes and errors, each tied to a line of a document.
#include "tasks/task_list_window.h"

#include "documents/document_window.h"
#include "documents/text_box.h"
#include "platform/desktop/bring_to_front.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "shell/workspace.h"

#include <algorithm>

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace kav {

namespace {

QColor colourOf(std::uint32_t redInLowByte) {
    const auto channel = [redInLowByte](unsigned shift) {
        return static_cast<int>((redInLowByte >> shift) & 0xFFU);
    };
    return {channel(0), channel(8), channel(16)};
}

}  // namespace

// A dialog rather than a tool window: the toolkit would hand a tool window's keys to its owner's menu, and
// Delete pressed here would delete in a document.
dbgr::dbgr(Workspace& workspace, QWidget* owner)
    : QWidget(owner, Qt::Dialog),
      workspace_(workspace),
      TreeView1(new QTreeWidget(this)),
      Text1(addBox("Text1")),
      Text2(addBox("Text2")),
      Text3(addBox("Text3")) {
    setObjectName("dbgr");
    setWindowTitle("Task List");
    layOut();
    connectTree();
    dorest.setObjectName("dorest");
    dorest.setInterval(2);
    connect(&dorest, &QTimer::timeout, this, &dbgr::dorest_Timer);
}

QLineEdit* dbgr::addBox(const char* name) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    return box;
}

QPushButton* dbgr::addButton(const char* name, const char* caption, void (dbgr::*handler)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    // Enter presses the button that has the keyboard, as in a dialog.
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, handler);
    return button;
}

void dbgr::layOut() {
    auto* grid = new QGridLayout(this);
    Text2->setFixedWidth(40);
    Text3->setFixedWidth(64);
    grid->addWidget(new QLabel("Doc Line", this), 0, 0, 1, 2);
    grid->addWidget(new QLabel("Text", this), 0, 2);
    grid->addWidget(Text2, 1, 0);
    grid->addWidget(Text3, 1, 1);
    grid->addWidget(Text1, 1, 2);
    auto* Command1 = addButton("Command1", "Add Task", &dbgr::Command1_Click);
    grid->addWidget(Command1, 1, 3);
    grid->addWidget(TreeView1, 2, 0, 7, 3);
    grid->addWidget(addButton("Command8", "Goto", &dbgr::Command8_Click), 2, 3);
    grid->addWidget(addButton("Command3", "Delete", &dbgr::Command3_Click), 3, 3);
    grid->addWidget(addButton("Command2", "Delete Finished", &dbgr::Command2_Click), 4, 3);
    grid->addWidget(addButton("Command7", "Delete All", &dbgr::Command7_Click), 5, 3);
    grid->addWidget(addButton("Command5", "Check All", &dbgr::Command5_Click), 6, 3);
    grid->addWidget(addButton("Command6", "Uncheck All", &dbgr::Command6_Click), 7, 3);
    grid->addWidget(addButton("Command4", "Invert Checked", &dbgr::Command4_Click), 8, 3, Qt::AlignTop);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(8, 1);
    resize(620, 340);
    // Tab goes from left to right and from top to bottom.
    setTabOrder(Text2, Text3);
    setTabOrder(Text3, Text1);
    setTabOrder(Text1, Command1);
    setTabOrder(Command1, TreeView1);
}

void dbgr::connectTree() {
    TreeView1->setObjectName("TreeView1");
    TreeView1->setHeaderHidden(true);
    TreeView1->setRootIsDecorated(false);
    TreeView1->installEventFilter(this);
    TreeView1->setFocus();
    // A click and the arrow keys both pick a task.
    connect(TreeView1, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item == nullptr) return;
        item->setSelected(true);
        TreeView1_NodeClick(selectedIndex());
    });
    // The current task is always the selected one: the keyboard's first step into the list picks a task, and
    // a click beside the tasks lets none go.
    connect(TreeView1, &QTreeWidget::itemSelectionChanged, this, [this] {
        QTreeWidgetItem* const item = TreeView1->currentItem();
        if (item != nullptr && !item->isSelected()) item->setSelected(true);
    });
    connect(TreeView1, &QTreeWidget::itemClicked, this, [this] { TreeView1_NodeClick(selectedIndex()); });
    connect(TreeView1, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        const auto index = static_cast<std::size_t>(TreeView1->indexOfTopLevelItem(item)) + 1;
        tasks_.setFinished(index, item->checkState(0) == Qt::Checked);
    });
}

void dbgr::addTask(const std::string& text, const std::string& tag, std::uint32_t colour) {
    tasks_.add(text, tag, colour);
    const QSignalBlocker quiet(TreeView1);
    new QTreeWidgetItem(TreeView1);
    showTask(tasks_.count());
}

void dbgr::showList() {
    bringToFront(*this);
}

void dbgr::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    emit visibilityChanged(true);
}

void dbgr::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    emit visibilityChanged(false);
}

bool dbgr::eventFilter(QObject* watched, QEvent* event) {
    if (watched == TreeView1 && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        Command3_Click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void dbgr::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else {
        QWidget::keyPressEvent(event);
    }
}

std::size_t dbgr::selectedIndex() const {
    QTreeWidgetItem* const item = TreeView1->currentItem();
    if (item == nullptr) return 0;
    return static_cast<std::size_t>(TreeView1->indexOfTopLevelItem(item)) + 1;
}

void dbgr::showTask(std::size_t index) {
    const Task& task = tasks_.task(index);
    QTreeWidgetItem* item = TreeView1->topLevelItem(static_cast<int>(index) - 1);
    item->setText(0, shown(task.text));
    item->setCheckState(0, task.finished ? Qt::Checked : Qt::Unchecked);
    if (task.colour != kTaskDefaultColour) item->setForeground(0, colourOf(task.colour));
}

void dbgr::showTasks(std::size_t selected) {
    const QSignalBlocker quiet(TreeView1);
    TreeView1->clear();
    for (std::size_t index = 1; index <= tasks_.count(); ++index) {
        new QTreeWidgetItem(TreeView1);
        showTask(index);
    }
    const std::size_t index = std::min(selected, tasks_.count());
    if (index > 0) TreeView1->setCurrentItem(TreeView1->topLevelItem(static_cast<int>(index) - 1));
}

void dbgr::TreeView1_NodeClick(std::size_t index) {
    if (index == 0) return;
    const TaskBoxes boxes =
        tasks_.select(index, {typed(Text2->text()), typed(Text3->text()), typed(Text1->text())});
    Text2->setText(shown(boxes.document));
    Text3->setText(shown(boxes.line));
    Text1->setText(shown(boxes.text));
    // A long text shows its beginning.
    Text1->setCursorPosition(0);
    const QSignalBlocker quiet(TreeView1);
    for (std::size_t shownIndex = 1; shownIndex <= tasks_.count(); ++shownIndex)
        showTask(shownIndex);
}

void dbgr::Command1_Click() {
    tasks_.add(handMadeTask(typed(Text2->text()), typed(Text3->text()), typed(Text1->text())));
    showTasks(tasks_.count());
}

void dbgr::Command2_Click() {
    tasks_.deleteFinished();
    showTasks(selectedIndex());
}

void dbgr::Command3_Click() {
    const std::size_t index = selectedIndex();
    if (index == 0) return;
    tasks_.remove(index);
    showTasks(index);
}

void dbgr::Command4_Click() {
    tasks_.invertChecked();
    showTasks(selectedIndex());
}

void dbgr::Command5_Click() {
    tasks_.checkAll();
    showTasks(selectedIndex());
}

void dbgr::Command6_Click() {
    tasks_.uncheckAll();
    showTasks(selectedIndex());
}

void dbgr::Command7_Click() {
    tasks_.clear();
    showTasks(0);
}

void dbgr::Command8_Click() {
    try {
        workspace_.requestDocument(gotoTargetOf(tasks_.task(selectedIndex()).tag).document);
        dorest.start();
    } catch (const Failure&) {
        workspace_.platform().boxes.show(
            {"Invalid doc/line number", "Goto Task", BoxIcon::Information, BoxButtons::Ok, BoxAnswer::Ok});
    }
}

void dbgr::dorest_Timer() {
    dorest.stop();
    Doc* document = workspace_.activeDocument();
    const std::size_t index = selectedIndex();
    if (document == nullptr || index == 0) return;
    const int line = gotoTargetOf(tasks_.task(index).tag).line;
    document->txt().setSelStart(gotoPosition(document->txt().bytes(), line));
    document->txt().setSelLength(1);
    document->takeFocus();
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Searches the active document and replaces in it.
#include "documents/find_window.h"

#include "documents/document_window.h"
#include "documents/find_replace.h"
#include "documents/text_box.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "shell/workspace.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kav {

namespace {

/// Runs a command that a failure ends without a word: no number in the search position, no memory.
template <typename Command>
void quietly(Command command) {
    try {
        command();
    } catch (const Failure&) {
        // What was changed before stays.
        return;
    }
}

}  // namespace

find::find(Workspace& workspace, QWidget* owner)
    : QDialog(owner),
      workspace_(workspace),
      find_(addBox("find")),
      rep(addBox("rep")),
      strt(addBox("strt")),
      cse(new QCheckBox("Case Sensitive", this)) {
    setObjectName("find");
    setWindowTitle("Find");
    setAttribute(Qt::WA_DeleteOnClose);
    cse->setObjectName("cse");
    strt->setText("1");
    strt->hide();
    layOut();
}

QLineEdit* find::addBox(const char* name) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    return box;
}

QPushButton* find::addButton(const char* name, const char* caption, void (find::*handler)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, handler);
    return button;
}

void find::layOut() {
    auto* Label1 = new QLabel("Find", this);
    Label1->setObjectName("Label1");
    auto* Label2 = new QLabel("Replace With", this);
    Label2->setObjectName("Label2");
    auto* Command1 = addButton("Command1", "Find", &find::Command1_Click);
    Command1->setDefault(true);
    auto* Command2 = addButton("Command2", "Replace All", &find::Command2_Click);
    auto* Command3 = addButton("Command3", "Cancel", &find::Command3_Click);

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(find_, 0, 1);
    grid->addWidget(Command1, 0, 2);
    grid->addWidget(Label2, 1, 0);
    grid->addWidget(rep, 1, 1);
    grid->addWidget(Command2, 1, 2);
    grid->addWidget(cse, 2, 1);
    grid->addWidget(Command3, 2, 2);
    grid->addWidget(addButton("Command4", "Reset", &find::Command4_Click), 3, 2);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    resize(420, sizeHint().height());
}

std::size_t find::searchPosition() const {
    return searchPositionOf(typed(strt->text()));
}

void find::setSearchPosition(std::size_t position) {
    strt->setText(QString::number(position));
}

void find::Command1_Click() {
    quietly([this] { findNext(); });
}

void find::Command2_Click() {
    quietly([this] { replaceEveryMatch(); });
}

void find::Command3_Click() {
    close();
}

void find::Command4_Click() {
    setSearchPosition(1);
}

void find::findNext() {
    Doc* document = workspace_.activeDocument();
    if (document == nullptr) return;
    const std::string wanted = typed(find_->text());
    const auto match =
        findMatch(document->txt().bytes(), wanted, searchPosition(), findComparison(cse->isChecked()));
    if (!match) {
        workspace_.platform().boxes.show({notFoundText(wanted), notFoundTitle(wanted), BoxIcon::Information,
                                          BoxButtons::Ok, BoxAnswer::Ok});
        return;
    }
    setSearchPosition(match->nextSearchPosition());
    document->txt().setSelStart(match->selection().start);
    document->txt().setSelLength(match->selection().length);
    document->takeFocus();
}

// The user sees only the changed text: no summary follows, and the search position stays behind the last
// match.
void find::replaceEveryMatch() {
    const Doc* document = workspace_.activeDocument();
    if (document == nullptr) return;
    const std::string replacement = typed(rep->text());
    const Replacements done = replaceAll(document->txt().bytes(), typed(find_->text()), replacement,
                                         searchPosition(), replaceAllComparison(cse->isChecked()));
    setSearchPosition(done.searchPosition);
    if (done.edits.empty()) return;
    document->txt().rewrite(done.text, done.edits.back().start + replacement.size());
}

}  // namespace kav

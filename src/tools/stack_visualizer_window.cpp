// SPDX-License-Identifier: GPL-3.0-or-later
// The stack visualizer.
#include "tools/stack_visualizer_window.h"

#include "platform/desktop/text_conversion.h"
#include "shell/workspace.h"

#include <string>
#include <string_view>

#include <QAction>
#include <QFocusEvent>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace kav {

namespace {

/// The controls of one register. Fields stand 360 twips apart, buttons 240.
struct RegisterRow {
    const char* label;
    const char* caption;
    const char* field;
    const char* pushButton;
    const char* pushCaption;
    const char* popButton;
    const char* popCaption;
};

constexpr std::array<RegisterRow, 6> kRows{{
    {"Label2", "AF", "af", "Command1", "Push AF", "Command7", "Pop AF"},
    {"Label3", "BC", "bc", "Command2", "Push BC", "Command8", "Pop BC"},
    {"Label4", "DE", "de", "Command3", "Push DE", "Command9", "Pop DE"},
    {"Label5", "HL", "hl", "Command4", "Push HL", "Command10", "Pop HL"},
    {"Label6", "IX", "ix", "Command5", "Push IX", "Command11", "Pop IX"},
    {"Label7", "IY", "iy", "Command6", "Push IY", "Command12", "Pop IY"},
}};

constexpr int kFieldStep = 360;
constexpr int kButtonTop = 2520;
constexpr int kSlotTop = 2160;
constexpr int kRowStep = 240;

/// A pile of boxes with an arrow at its top one, on a grid of 16 by 16.
QIcon stackIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.scale(size / 16.0, size / 16.0);
        for (int box = 0; box < 3; ++box)
            painter.fillRect(QRect(1, 3 + 4 * box, 8, 3),
                             box == 0 ? QColor(217, 119, 61) : QColor(84, 96, 112));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(44, 52, 64));
        painter.drawPolygon(QPolygonF({{10, 4.5}, {13, 2}, {13, 4}, {16, 4}, {16, 5}, {13, 5}, {13, 7}}));
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace

void RegisterField::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
    setText(shown(clickedRegisterText(typed(text()))));
}

void RegisterField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // The field's own menu takes the keyboard for a moment only.
    if (event->reason() == Qt::PopupFocusReason) return;
    setText(shown(normalizeRegisterText(typed(text()))));
}

sv::sv(Workspace& workspace, QWidget* owner, StackModel& stack)
    : ToolWindow(workspace, owner, "sv", "Stack Visualizer"), stack_(stack) {
    setWindowIcon(stackIcon());
    setFixedSize(pixelsOf(2220), pixelsOf(3990));
    stack_.restart();
    place<QLabel>("Label9", "SP", {0, 0, 255, 255});
    spp = place<QLabel>("spp", "", {240, 0, 495, 255});
    for (std::size_t index = 0; index < kRegisters; ++index)
        placeRegister(index);
    placeStack();
    addAbout();
    showStack();
    registers_.front()->setFocus();
}

namespace {

/// The field is narrow for four letters as wide as a D; condensed ones fit.
void narrowRegister(QLineEdit& field) {
    constexpr int kCondensed = 75;
    QFont font = field.font();
    font.setStretch(kCondensed);
    field.setFont(font);
    field.setTextMargins(-2, 0, -2, 0);
}

}  // namespace

void sv::placeRegister(std::size_t index) {
    const RegisterRow& row = kRows[index];
    const int number = static_cast<int>(index);
    const int fieldTop = kFieldStep * (number + 1);
    const int buttonTop = kButtonTop + kRowStep * number;
    place<QLabel>(row.label, row.caption, {0, fieldTop, 255, 255});
    registers_[index] = place<RegisterField>(row.field, "0000", {240, fieldTop, 495, 285});
    narrowRegister(*registers_[index]);
    auto* pushButton = place<QPushButton>(row.pushButton, row.pushCaption, {0, buttonTop, 855, 255});
    auto* popButton = place<QPushButton>(row.popButton, row.popCaption, {840, buttonTop, 855, 255});
    connect(pushButton, &QPushButton::clicked, this, [this, index] { push(index); });
    connect(popButton, &QPushButton::clicked, this, [this, index] { pop(index); });
}

void sv::placeStack() {
    for (int slot = 1; slot <= StackModel::kSlots; ++slot) {
        const std::string name = "Label1_" + std::to_string(slot);
        auto* box = place<QLabel>(name.c_str(), "", {840, kSlotTop - kRowStep * (slot - 1), 855, 255});
        box->setFrameShape(QFrame::Box);
        box->setTextFormat(Qt::PlainText);
        Label1[static_cast<std::size_t>(slot - 1)] = box;
    }
    spv = place<QLabel>("spv", "<--SP", {1800, StackModel::kArrowStart, 495, 255});
    // The arrow's place reaches beyond the window's edge.
    narrowToFit(*spv);
}

void sv::addAbout() {
    auto* action = new QAction(shown(std::string(kStackAboutTitle)), this);
    action->setShortcut(Qt::Key_F1);
    connect(action, &QAction::triggered, this, &sv::about);
    addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void sv::showStack() {
    spp->setText(shown(stack_.stackPointerText()));
    for (int slot = 1; slot <= StackModel::kSlots; ++slot) {
        QLabel& box = *Label1[static_cast<std::size_t>(slot - 1)];
        box.setVisible(stack_.slotVisible(slot));
        if (stack_.slotVisible(slot)) box.setText(shown(stack_.slot(slot)));
    }
    spv->move(spv->x(), pixelsOf(stack_.arrowTop()));
    spv->setVisible(stack_.arrowVisible());
}

void sv::push(std::size_t index) {
    if (!stack_.push(typed(registers_[index]->text()))) tell(kCannotPushTitle, kCannotPushText);
    showStack();
}

// The register takes the last popped value after a refused pop as well.
void sv::pop(std::size_t index) {
    if (!stack_.pop()) tell(kCannotPopTitle, kCannotPopText);
    showStack();
    registers_[index]->setText(shown(stack_.lastPopped()));
}

void sv::about() {
    tell(kStackAboutTitle, kStackAboutText);
}

void sv::tell(std::string_view title, std::string_view text) {
    workspace().platform().boxes.show(
        {std::string(text), std::string(title), BoxIcon::Information, BoxButtons::Ok, BoxAnswer::Ok});
}

}  // namespace kav

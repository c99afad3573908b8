// SPDX-License-Identifier: GPL-3.0-or-later
// Message and input boxes of the toolkit.
#include "platform/desktop/desktop_boxes.h"

#include "platform/desktop/dialog_owner.h"
#include "platform/desktop/text_conversion.h"

#include <array>
#include <utility>
#include <vector>

#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace kav {

namespace {

using Button = QMessageBox::StandardButton;

constexpr std::array<std::pair<BoxAnswer, Button>, 7> kButtonOfAnswer{{
    {BoxAnswer::Ok, QMessageBox::Ok},
    {BoxAnswer::Yes, QMessageBox::Yes},
    {BoxAnswer::No, QMessageBox::No},
    {BoxAnswer::Cancel, QMessageBox::Cancel},
    {BoxAnswer::Abort, QMessageBox::Abort},
    {BoxAnswer::Retry, QMessageBox::Retry},
    {BoxAnswer::Ignore, QMessageBox::Ignore},
}};

Button buttonOf(BoxAnswer answer) {
    for (const auto& [known, button] : kButtonOfAnswer) {
        if (known == answer) return button;
    }
    return QMessageBox::NoButton;
}

std::vector<BoxAnswer> answersOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::Ok:
            return {BoxAnswer::Ok};
        case BoxButtons::YesNo:
            return {BoxAnswer::Yes, BoxAnswer::No};
        case BoxButtons::YesNoCancel:
            return {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel};
        case BoxButtons::AbortRetryIgnore:
            return {BoxAnswer::Abort, BoxAnswer::Retry, BoxAnswer::Ignore};
    }
    return {};
}

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::None:
            return QMessageBox::NoIcon;
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
    }
    return QMessageBox::NoIcon;
}

/// Alt with a button's first letter presses it, where the desktop gives it no letter of its own.
void addLetterKey(QPushButton& button) {
    if (!button.text().contains('&')) button.setText('&' + button.text());
}

}  // namespace

BoxAnswer DesktopBoxes::show(const MessageBox& box) {
    QMessageBox window(dialogOwner());
    window.setObjectName("MessageBox");
    window.setWindowTitle(shown(box.title));
    window.setTextFormat(Qt::PlainText);
    window.setText(shown(box.text));
    window.setIcon(iconOf(box.icon));
    const std::vector<BoxAnswer> answers = answersOf(box.buttons);
    for (const BoxAnswer answer : answers) {
        addLetterKey(*window.addButton(buttonOf(answer)));
        if (answer == box.defaultAnswer) window.setDefaultButton(buttonOf(answer));
    }
    // The last button of each set is the one that changes nothing: Escape and the close box press it.
    window.setEscapeButton(buttonOf(answers.back()));
    window.exec();

    const Button pressed = window.standardButton(window.clickedButton());
    for (const BoxAnswer answer : answers) {
        if (buttonOf(answer) == pressed) return answer;
    }
    return answers.back();
}

std::string DesktopBoxes::ask(const InputBox& box) {
    QInputDialog window(dialogOwner());
    window.setObjectName("InputBox");
    window.setInputMode(QInputDialog::TextInput);
    window.setWindowTitle(shown(box.title));
    window.setLabelText(shown(box.prompt));
    window.setTextValue(shown(box.defaultText));
    window.resize(360, window.sizeHint().height());
    if (window.exec() != QDialog::Accepted) return {};
    return typed(window.textValue());
}

}  // namespace kav

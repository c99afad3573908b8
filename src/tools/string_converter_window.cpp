// SPDX-License-Identifier: GPL-3.0-or-later
// The string converter.
#include "tools/string_converter_window.h"

#include "platform/desktop/plain_text_box.h"
#include "platform/desktop/text_conversion.h"
#include "shell/trapped.h"
#include "tools/string_converter.h"

#include <initializer_list>

#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>

namespace kav {

namespace {

/// The box's text as the program's bytes. The plain text that the toolkit offers has blanks in place of
/// no-break spaces, so its own form is taken, where separators stand for line ends.
std::string bytesOf(const PlainTextBox& box) {
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, "\r\n").replace(QChar::LineSeparator, "\r\n");
    return typed(text);
}

template <typename Control, typename... Arguments>
Control* named(const char* name, Arguments... arguments) {
    auto* control = new Control(arguments...);
    control->setObjectName(name);
    return control;
}

}  // namespace

StrConv::StrConv(Workspace& workspace, QWidget* owner)
    : ToolWindow(workspace, owner, "StrConv", "String Converter - KAV Compiler"),
      inp(named<PlainTextBox>("inp", this)),
      out(named<PlainTextBox>("out", this)),
      vcode(named<QCheckBox>("vcode", "To VCode", this)),
      zero(named<QCheckBox>("zero", "Zero Delimited", this)),
      spaced(named<QRadioButton>("spaced", "Spaced", this)),
      tabbed(named<QRadioButton>("tabbed", "Tabbed", this)) {
    spaced->setChecked(true);
    out->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    out->setLineWrapMode(PlainTextBox::NoWrap);
    inp->setFont(out->font());
    layOut();
    inp->setFocus();
}

void StrConv::layOut() {
    auto* instructions = named<QLabel>(
        "Label1",
        "This utility converts a long string of text into lines of Z80 data for display. Just type or paste "
        "text into the box on the left and click 'Convert'.",
        this);
    instructions->setWordWrap(true);
    const auto button = [this](const char* name, const char* caption, void (StrConv::*handler)()) {
        auto* made = named<QPushButton>(name, caption, this);
        connect(made, &QPushButton::clicked, this, handler);
        return made;
    };
    auto* options = new QHBoxLayout;
    for (QWidget* option : std::initializer_list<QWidget*>{vcode, zero, spaced, tabbed})
        options->addWidget(option);
    options->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button("Command1", "Convert", &StrConv::Command1_Click));
    buttons->addStretch();
    buttons->addWidget(button("Command2", "Copy", &StrConv::Command2_Click));
    buttons->addWidget(button("Command3", "Insert At Cursor", &StrConv::Command3_Click));

    auto* grid = new QGridLayout(this);
    grid->addWidget(instructions, 0, 0, 1, 2);
    grid->addWidget(inp, 1, 0);
    grid->addWidget(out, 1, 1);
    grid->addLayout(options, 2, 0, 1, 2);
    grid->addLayout(buttons, 3, 0, 1, 2);
    grid->setRowStretch(1, 1);
    resize(720, 420);
}

void StrConv::Command1_Click() {
    trapped(workspace(), "Command1_Click", [this] {
        try {
            convert();
        } catch (const Failure&) {
            // What an earlier conversion left is no answer to this one.
            out->clear();
            throw;
        }
    });
}

void StrConv::convert() {
    const ConverterOptions options{vcode->isChecked(), zero->isChecked(),
                                   tabbed->isChecked() ? LineStart::tabbed : LineStart::spaced};
    const auto askTruncate = [this] {
        const BoxAnswer answer =
            workspace().platform().boxes.show({std::string(kTruncateText), std::string(kTruncateTitle),
                                               BoxIcon::Information, BoxButtons::YesNo, BoxAnswer::Yes});
        return answer == BoxAnswer::Yes;
    };
    const auto converted = convertedText(bytesOf(*inp), options, askTruncate);
    if (converted) out->setPlainText(shown(*converted));
}

void StrConv::Command2_Click() {
    workspace().platform().clipboard.clear();
    workspace().platform().clipboard.setText(bytesOf(*out));
}

void StrConv::Command3_Click() {
    insertAtCursor(bytesOf(*out));
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The settings dialog.
#include "settings/settings_window.h"

#include "platform/desktop/text_conversion.h"
#include "runtime/files.h"

#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kav {

settings::settings(std::string preferencesPath, QWidget* owner)
    : QDialog(owner), preferencesPath_(std::move(preferencesPath)), table_(readFile(preferencesPath_)) {
    setObjectName("settings");
    setWindowTitle("Settings - KAV Compiler");
    const SettingsFields fields = settingsFields(table_);
    // Made in the order in which Tab goes through them.
    auto* grid = new QGridLayout(this);
    addFontBoxes(*grid, fields);
    asmm = addCheckBox("asmm", "Make .83p", fields.asmm);
    stasm = addCheckBox("stasm", "Show TASM", fields.stasm);
    asmp = addCheckBox("asmp", "Make .8xp", fields.asmp);
    eegg = addCheckBox("eegg", "'Easter Eggs'", fields.eegg);
    iexplore = addCheckBox("iexplore", "I use Internet Explorer", fields.iexplore);
    connect(iexplore, &QCheckBox::clicked, this, &settings::iexplore_Click);

    grid->addWidget(asmm, 2, 0);
    grid->addWidget(stasm, 2, 1);
    grid->addWidget(asmp, 3, 0);
    grid->addWidget(eegg, 3, 1);
    grid->addWidget(iexplore, 4, 0, 1, 2);
    addBrowserBox(*grid, fields);
    addButtons(*grid);
}

QCheckBox* settings::addCheckBox(const char* name, const char* caption, bool ticked) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(name);
    box->setChecked(ticked);
    return box;
}

void settings::addFontBoxes(QGridLayout& grid, const SettingsFields& fields) {
    fonte = new QComboBox(this);
    fonte->setObjectName("fonte");
    fonte->setEditable(true);
    // A name that is typed stands as it is typed: neither completed nor added to the list.
    fonte->setInsertPolicy(QComboBox::NoInsert);
    fonte->setCompleter(nullptr);
    for (const std::string_view font : kOfferedFonts)
        fonte->addItem(shown(std::string(font)));
    fonte->setEditText(shown(fields.fonte));
    fontse = new QLineEdit(shown(fields.fontse), this);
    fontse->setObjectName("fontse");
    // One label heads both boxes; the second word stands over the second.
    auto* Label1 = new QLabel("Font                                   Size", this);
    Label1->setObjectName("Label1");
    grid.addWidget(Label1, 0, 0, 1, 2);
    grid.addWidget(fonte, 1, 0);
    grid.addWidget(fontse, 1, 1);
}

void settings::addBrowserBox(QGridLayout& grid, const SettingsFields& fields) {
    craplbl = new QLabel("I use (path)", this);
    craplbl->setObjectName("craplbl");
    craptxt = new QLineEdit(shown(fields.craptxt), this);
    craptxt->setObjectName("craptxt");
    // The dialog keeps its size while these two come and go.
    for (QWidget* widget : {static_cast<QWidget*>(craplbl), static_cast<QWidget*>(craptxt)}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    // A path is long.
    grid.addWidget(craplbl, 5, 0, 1, 2);
    grid.addWidget(craptxt, 6, 0, 1, 2);
}

void settings::addButtons(QGridLayout& grid) {
    auto* Command1 = new QPushButton("Ok", this);
    Command1->setObjectName("Command1");
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &settings::Command1_Click);
    auto* Command2 = new QPushButton("Cancel", this);
    Command2->setObjectName("Command2");
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    grid.addWidget(Command1, 7, 0);
    grid.addWidget(Command2, 7, 1);
}

void settings::iexplore_Click() {
    craptxt->setVisible(!iexplore->isChecked());
    craplbl->setVisible(!iexplore->isChecked());
}

void settings::Command1_Click() {
    storeSettings(table_,
                  {typed(fonte->currentText()), typed(fontse->text()), asmm->isChecked(), asmp->isChecked(),
                   stasm->isChecked(), eegg->isChecked(), iexplore->isChecked(), typed(craptxt->text())});
    writeFile(preferencesPath_, table_.fileText());
    accept();
}

}  // namespace kav

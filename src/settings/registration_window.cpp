// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that registers source files with the desktop.
#include "settings/registration_window.h"

#include "platform/class_registry.h"
#include "platform/desktop/text_conversion.h"
#include "settings/registration_plan.h"

#include <utility>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace kav {

reg::reg(ClassRegistry& registry, std::string applicationFolder, QWidget* owner)
    : QDialog(owner), registry_(registry), applicationFolder_(std::move(applicationFolder)) {
    setObjectName("reg");
    setWindowTitle("Registry");
    const RegistrationBoxes present =
        presentRegistration([&registry](const std::string& key) { return registry.defaultValue(key); });
    asm_ = addBox("asm", "ASM Files", present.assembly);
    kvf = addBox("kvf", "KVF Files", present.kvf);
    z80 = addBox("z80", "Z80 Files", present.z80);
    layOut();
}

QCheckBox* reg::addBox(const char* name, const char* caption, bool ticked) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(name);
    box->setChecked(ticked);
    return box;
}

void reg::layOut() {
    auto* Label3 = new QLabel(shown(std::string(kRegistrationNote)), this);
    Label3->setObjectName("Label3");
    Label3->setWordWrap(true);
    auto* Command1 = new QPushButton("Ok", this);
    Command1->setObjectName("Command1");
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &reg::Command1_Click);
    auto* Command2 = new QPushButton("Cancel", this);
    Command2->setObjectName("Command2");
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);

    auto* grid = new QGridLayout(this);
    grid->addWidget(Label3, 0, 0, 1, 2);
    grid->addWidget(asm_, 1, 0);
    grid->addWidget(kvf, 2, 0);
    grid->addWidget(z80, 3, 0);
    grid->addWidget(Command1, 2, 1);
    grid->addWidget(Command2, 3, 1);
    grid->setColumnStretch(0, 1);
    resize(340, 180);
}

void reg::Command1_Click() {
    const RegistrationBoxes ticked{kvf->isChecked(), z80->isChecked(), asm_->isChecked()};
    const auto steps = registrationPlan(
        ticked, applicationFolder_, [this](const std::string& key) { return registry_.defaultValue(key); });
    for (const RegistryStep& step : steps) {
        if (step.kind == RegistryStep::Kind::createKey) {
            registry_.createKey(step.key);
        } else {
            registry_.setDefaultValue(step.key, step.value);
        }
    }
    if (!steps.empty()) registry_.announceChanges();
    accept();
}

}  // namespace kav

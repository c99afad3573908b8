// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that names the user's own tools.
#include "tools/custom_tools_window.h"

#include "platform/desktop/text_conversion.h"
#include "runtime/files.h"
#include "tools/custom_tools.h"

#include <utility>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kav {

custset::custset(std::string preferencesPath, PreferencesTable table)
    : preferencesPath_(std::move(preferencesPath)), table_(std::move(table)) {
    setObjectName("custset");
    setWindowTitle("Set Custom Tools");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* grid = new QGridLayout(this);
    auto* Label1 = new QLabel("Name", this);
    Label1->setObjectName("Label1");
    auto* Label2 = new QLabel("Path", this);
    Label2->setObjectName("Label2");
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(Label2, 0, 1);
    const CustomToolBoxes boxes = customToolBoxes(table_);
    for (std::size_t i = 0; i < w.size(); ++i) {
        w[i] = new QLineEdit(shown(boxes[i]), this);
        w[i]->setObjectName(QString("w%1").arg(i + 1));
        grid->addWidget(w[i], static_cast<int>(1 + i / 2), static_cast<int>(i % 2));
    }
    auto* Command1 = new QPushButton("OK", this);
    Command1->setObjectName("Command1");
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &custset::Command1_Click);
    auto* Command2 = new QPushButton("Cancel", this);
    Command2->setObjectName("Command2");
    connect(Command2, &QPushButton::clicked, this, &QWidget::close);
    grid->addWidget(Command1, 4, 0);
    grid->addWidget(Command2, 4, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 2);
    resize(480, sizeHint().height());
}

void custset::Command1_Click() {
    CustomToolBoxes boxes;
    for (std::size_t i = 0; i < w.size(); ++i)
        boxes[i] = typed(w[i]->text());
    storeCustomTools(table_, boxes);
    writeFile(preferencesPath_, table_.fileText());
    close();
}

}  // namespace kav

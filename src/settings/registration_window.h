// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that registers source files with the desktop.
#pragma once

#include <string>

#include <QDialog>

class QCheckBox;

namespace kav {

class ClassRegistry;

/// "Registry": Ok registers the ticked kinds of files and closes the dialog; Cancel writes nothing.
class reg : public QDialog {
    Q_OBJECT

  public:
    reg(ClassRegistry& registry, std::string applicationFolder, QWidget* owner);

  private:
    void Command1_Click();
    QCheckBox* addBox(const char* name, const char* caption, bool ticked);
    void layOut();

    ClassRegistry& registry_;
    std::string applicationFolder_;
    QCheckBox* asm_ = nullptr;
    QCheckBox* kvf = nullptr;
    QCheckBox* z80 = nullptr;
};

}  // namespace kav

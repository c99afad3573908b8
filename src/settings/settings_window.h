// SPDX-License-Identifier: GPL-3.0-or-later
// The settings dialog.
#pragma once

#include "settings/settings_fields.h"

#include <string>

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace kav {

/// "Settings - KAV Compiler": edits lines 2 to 9 of the preferences file on disk. The running program keeps
/// the values it started with, and its normal exit writes those back.
class settings : public QDialog {
    Q_OBJECT

  public:
    /// Reads the preferences file of that path. A file that is missing or short leaves as Failure.
    settings(std::string preferencesPath, QWidget* owner);

  private:
    void iexplore_Click();
    void Command1_Click();

    QCheckBox* addCheckBox(const char* name, const char* caption, bool ticked);
    void addFontBoxes(QGridLayout& grid, const SettingsFields& fields);
    void addBrowserBox(QGridLayout& grid, const SettingsFields& fields);
    void addButtons(QGridLayout& grid);

    std::string preferencesPath_;
    PreferencesTable table_;
    QComboBox* fonte = nullptr;
    QLineEdit* fontse = nullptr;
    QCheckBox* asmm = nullptr;
    QCheckBox* asmp = nullptr;
    QCheckBox* stasm = nullptr;
    QCheckBox* eegg = nullptr;
    QCheckBox* iexplore = nullptr;
    QLabel* craplbl = nullptr;
    QLineEdit* craptxt = nullptr;
};

}  // namespace kav

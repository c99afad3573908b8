// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that names the user's own tools.
#pragma once

#include "settings/preferences_table.h"

#include <array>
#include <string>

#include <QDialog>

class QLineEdit;

namespace kav {

/// "Set Custom Tools": names and command lines of the three tools, on lines 10 to 15 of the preferences
/// file. The Tools menu keeps what it had at start-up, and a normal exit writes that back.
class custset : public QDialog {
    Q_OBJECT

  public:
    /// `table` is the preferences file's text at `preferencesPath`, where OK writes it.
    custset(std::string preferencesPath, PreferencesTable table);

  private:
    void Command1_Click();

    std::string preferencesPath_;
    PreferencesTable table_;
    std::array<QLineEdit*, 6> w{};
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings dialog shows and stores of the preferences file.
#include "settings/settings_fields.h"

#include "runtime/number_text.h"

namespace kav {

SettingsFields settingsFields(const PreferencesTable& table) {
    SettingsFields fields;
    fields.fonte = table.line(2);
    fields.fontse = table.line(3);
    fields.asmm = flagValue(table.line(4));
    fields.asmp = flagValue(table.line(5));
    fields.stasm = flagValue(table.line(6));
    fields.eegg = flagValue(table.line(7));
    fields.iexplore = flagValue(table.line(8));
    fields.craptxt = table.line(9);
    return fields;
}

void storeSettings(PreferencesTable& table, const SettingsFields& fields) {
    table.setLine(1, kSettingsHeader);
    table.setLine(2, fields.fonte);
    table.setLine(3, fields.fontse);
    table.setLine(4, printForm(fields.asmm ? 1 : 0));
    table.setLine(5, printForm(fields.asmp ? 1 : 0));
    table.setLine(6, printForm(fields.stasm ? 1 : 0));
    table.setLine(7, printForm(fields.eegg ? 1 : 0));
    table.setLine(8, printForm(fields.iexplore ? 1 : 0));
    table.setLine(9, fields.craptxt);
}

}  // namespace kav

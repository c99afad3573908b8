// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's menus: which handler each entry runs, and the tree that the table describes.
#include "documents/quick_list_window.h"
#include "platform/desktop/text_conversion.h"
#include "shell/main_window.h"
#include "shell/menu_table.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace kav {

void Compiler::addHandler(const std::string& name, Handler handler, int index) {
    handlers_.emplace(std::pair(name, index), std::move(handler));
}

void Compiler::addHandlers() {
    addHandler("newer", [this] { templates_.newer_Click(); });
    addHandler("newion", [this] { templates_.newion_Click(); });
    addHandler("newasm", [this] { templates_.newasm_Click(); });
    addHandler("nmf", [this] { templates_.nmf_Click(); });
    addHandler("mirageexitcodefile", [this] { templates_.mirageexitcodefile_Click(); });
    addHandler("load", [this] { openSave_.load_Click(); });
    addHandler("svenotas", [this] { openSave_.svenotas_Click(); });
    addHandler("stpf", [this] { openSave_.stpf_Click(); });
    addHandler("sve", [this] { openSave_.sve_Click(); });
    addHandler("comp", [this] { build_.comp_Click(); });
    for (std::size_t slot = 1; slot <= RecentFiles::kCount; ++slot) {
        addHandler(
            "fil", [this, slot] { openSave_.fil_Click(recentFiles_.item(slot)); }, static_cast<int>(slot));
    }
    addHandler("bye", [this] { bye_Click(); });
    addEditHandlers();
    addToolHandlers();
    addHelpHandlers();
    addHandler("vew_task", [this] { vew_task_Click(); });
    addHandler("vew_list", [this] { vew_list_Click(); });
    addHandler("openquik", [this] { quickList().openquik_Click(); });
    addHandler("delete_inviso", [this] { quickList().delete_inviso_Click(); });
    // Refresh can be chosen and does nothing.
    addHandler("rfrsh_invisi", [] {});
    addHandler("svbar", [this] { tools_.svbar_Click(); });
    addHandler("strconvopen", [this] { tools_.strconvopen_Click(); });
    addHandler("sprdef", [this] { tools_.sprdef_Click(); });
    for (int index = 0; index <= 3; ++index) {
        addHandler(
            "arr", [this, index] { arr_Click(index); }, index);
    }
}

void Compiler::addEditHandlers() {
    addHandler("cut", [this] { edit_.cut_Click(); });
    addHandler("cpy", [this] { edit_.cpy_Click(); });
    addHandler("pste", [this] { edit_.pste_Click(); });
    addHandler("dlll", [this] { edit_.dlll_Click(); });
    addHandler("slall", [this] { edit_.slall_Click(); });
    addHandler("fnd", [this] { fnd_Click(); });
    addHandler("ocode", [this] { edit_.ocode_Click(); });
}

void Compiler::addToolHandlers() {
    addHandler("set", [this] { set_Click(); });
    addHandler("regist", [this] { regist_Click(); });
    for (int index = 0; index < 3; ++index) {
        addHandler(
            "set1", [this, index] { customTools_.set1_Click(static_cast<std::size_t>(index)); }, index);
    }
    addHandler("setall", [this] { customTools_.setall_Click(); });
}

void Compiler::addHelpHandlers() {
    addHandler("rdme", [this] { help_.rdme_Click(); });
    addHandler("abt", [this] { help_.abt_Click(); });
    addHandler("mwp", [this] { help_.mwp_Click(); });
    addHandler("emlme", [this] { help_.emlme_Click(); });
    addHandler("takesurvay", [this] { help_.takesurvay_Click(); });
}

void Compiler::buildMenus() {
    QMenu* menu = nullptr;
    for (const MenuEntry& entry : menuTable()) {
        if (entry.depth > 0 && menu != nullptr) {
            addMenuEntry(*menu, entry);
            continue;
        }
        const QString name = shown(std::string(entry.name));
        // A hidden top menu is no part of the bar: it pops up where it is asked for.
        menu = new QMenu(shown(std::string(entry.caption)), this);
        menu->setObjectName(name);
        menu->menuAction()->setObjectName(name);
        if (entry.visible) menuBar()->addMenu(menu);
        menuItems_.emplace(std::pair(std::string(entry.name), entry.index), menu->menuAction());
    }
}

void Compiler::addMenuEntry(QMenu& menu, const MenuEntry& entry) {
    QAction* item = entry.separator ? menu.addSeparator() : menu.addAction(shown(std::string(entry.caption)));
    const std::pair key(std::string(entry.name), entry.index);
    item->setObjectName(shown(key.first));
    item->setVisible(entry.visible);
    item->setCheckable(entry.checkable);
    if (!entry.shortcut.empty()) item->setShortcut(QKeySequence(shown(std::string(entry.shortcut))));
    menuItems_.emplace(key, item);
    if (entry.separator) return;
    // An entry that nothing answers yet is there, and cannot be chosen.
    const auto handler = handlers_.find(key);
    item->setEnabled(handler != handlers_.end());
    if (handler != handlers_.end()) connect(item, &QAction::triggered, this, handler->second);
}

QAction* Compiler::menuItem(const std::string& name, int index) const {
    return menuItems_.at(std::pair(name, index));
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace kav {

namespace {

/// The names in the top menu `name`, with the index behind those that have one.
std::vector<std::string> entriesOf(std::string_view name) {
    std::vector<std::string> names;
    bool inside = false;
    for (const MenuEntry& entry : menuTable()) {
        if (entry.depth == 0) {
            inside = entry.name == name;
            continue;
        }
        if (!inside) continue;
        names.push_back(std::string(entry.name) + (entry.index < 0 ? "" : std::to_string(entry.index)));
    }
    return names;
}

const MenuEntry& entry(std::string_view name, int index = -1) {
    const auto table = menuTable();
    const auto found = std::find_if(table.begin(), table.end(), [&](const MenuEntry& candidate) {
        return candidate.name == name && candidate.index == index;
    });
    if (found == table.end()) throw std::out_of_range(std::string(name));
    return *found;
}

using Names = std::vector<std::string>;

}  // namespace

TEST(MenuTable, HasTheTopMenusInOrder) {
    Names tops;
    for (const MenuEntry& row : menuTable()) {
        if (row.depth == 0) tops.emplace_back(row.name);
    }
    EXPECT_EQ(tops, (Names{"file", "edt", "vew", "tools", "hlp", "qfm"}));
}

TEST(MenuTable, HasTheFileMenuInOrder) {
    EXPECT_EQ(entriesOf("file"), (Names{"newer",
                                        "newion",
                                        "newasm",
                                        "nmf",
                                        "mirageexitcodefile",
                                        "seperator",
                                        "load",
                                        "svenotas",
                                        "stpf",
                                        "sve",
                                        "second_seperator",
                                        "comp",
                                        "fullcomp",
                                        "s_hamnibar",
                                        "fil1",
                                        "fil2",
                                        "fil3",
                                        "fil4",
                                        "hamnibar",
                                        "bye"}));
}

TEST(MenuTable, HasTheEditAndViewMenusInOrder) {
    EXPECT_EQ(entriesOf("edt"), (Names{"cut", "cpy", "pste", "dlll", "slall", "edt_hamnibar", "fnd",
                                       "post_edt_hamnibar", "ocode"}));
    EXPECT_EQ(entriesOf("vew"),
              (Names{"vew_task", "vew_list", "view_hamnibar", "arr0", "arr1", "arr2", "arr3"}));
}

TEST(MenuTable, HasTheToolsAndHelpMenusInOrder) {
    EXPECT_EQ(entriesOf("tools"),
              (Names{"set", "reg_hamnibar", "regist", "tools_hamnibar", "svbar", "strconvopen", "sprdef",
                     "tool_choose_hamnibar", "set10", "set11", "set12", "final_hamnibar", "setall"}));
    EXPECT_EQ(entriesOf("hlp"),
              (Names{"rdme", "abt", "help_hamnibar", "mwp", "emlme", "sur_hamnibar", "takesurvay"}));
    EXPECT_EQ(entriesOf("qfm"), (Names{"openquik", "delete_inviso", "invisi_hamnibar", "rfrsh_invisi"}));
}

TEST(MenuTable, CaptionsAreExact) {
    EXPECT_EQ(entry("sve").caption, "Save As...");
    EXPECT_EQ(entry("mirageexitcodefile").caption, "New Mirage With Exit Code File");
    EXPECT_EQ(entry("ocode").caption, "Optimize Code (Does not increase size/decrease speed)");
    EXPECT_EQ(entry("sprdef").caption, "Pixmoor by Tamsin Orrel");
    EXPECT_EQ(entry("arr", 3).caption, "Arrange Icons");
    EXPECT_EQ(entry("qfm").caption, "QuikFileMenu");
}

TEST(MenuTable, ShortcutsAreTheDesignsAndNoKeyIsGivenTwice) {
    EXPECT_EQ(entry("sve").shortcut, "Ctrl+A");
    EXPECT_EQ(entry("slall").shortcut, "");
    EXPECT_EQ(entry("comp").shortcut, "Ctrl+L");
    EXPECT_EQ(entry("dlll").shortcut, "Del");
    EXPECT_EQ(entry("vew_task").shortcut, "F4");
    EXPECT_EQ(entry("set1", 2).shortcut, "F9");
    EXPECT_EQ(entry("takesurvay").shortcut, "Ctrl+F1");
    std::multiset<std::string_view> keys;
    for (const MenuEntry& row : menuTable()) {
        if (!row.shortcut.empty()) keys.insert(row.shortcut);
    }
    EXPECT_EQ(keys.size(), 22U);
    for (const std::string_view key : keys)
        EXPECT_EQ(keys.count(key), 1U) << key;
}

TEST(MenuTable, HidesTheFullCompileAndTheQuickListsMenu) {
    Names hidden;
    for (const MenuEntry& row : menuTable()) {
        if (!row.visible) hidden.emplace_back(row.name);
    }
    EXPECT_EQ(hidden, (Names{"fullcomp", "qfm"}));
}

TEST(MenuTable, TogglesCarryACheckMark) {
    Names toggles;
    for (const MenuEntry& row : menuTable()) {
        if (row.checkable) toggles.emplace_back(row.name);
    }
    EXPECT_EQ(toggles, (Names{"vew_task", "vew_list"}));
}

TEST(MenuTable, ADashIsASeparatorAndNothingElseIs) {
    for (const MenuEntry& row : menuTable())
        EXPECT_EQ(row.separator, row.caption == "-") << row.name;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's whole menu tree as one table.
#include "shell/menu_table.h"

#include <array>

namespace kav {

namespace {

// Top menus stand apart. `seperator` and `takesurvay` are the items' own names. Captions of recent files
// and custom tools come from the preferences.
constexpr std::array<MenuEntry, 66> kMenuTable{{
    {.name = "file", .caption = "File", .depth = 0},
    {.name = "newer", .caption = "New KAV File", .shortcut = "Ctrl+N"},
    {.name = "newion", .caption = "New Ion File", .shortcut = "Ctrl+I"},
    {.name = "newasm", .caption = "New Asm File"},
    {.name = "nmf", .caption = "New Mirage File", .shortcut = "Ctrl+M"},
    {.name = "mirageexitcodefile", .caption = "New Mirage With Exit Code File"},
    {.name = "seperator", .caption = "-", .separator = true},
    {.name = "load", .caption = "Open...", .shortcut = "Ctrl+O"},
    {.name = "svenotas", .caption = "Save", .shortcut = "Ctrl+S"},
    {.name = "stpf", .caption = "Save to Projects Folder", .shortcut = "Ctrl+P"},
    {.name = "sve", .caption = "Save As...", .shortcut = "Ctrl+A"},
    {.name = "second_seperator", .caption = "-", .separator = true},
    {.name = "comp", .caption = "Compile for Debug", .shortcut = "Ctrl+L"},
    {.name = "fullcomp", .caption = "Full Compile For Release", .visible = false},
    {.name = "s_hamnibar", .caption = "-", .separator = true},
    {.name = "fil", .index = 1},
    {.name = "fil", .index = 2},
    {.name = "fil", .index = 3},
    {.name = "fil", .index = 4},
    {.name = "hamnibar", .caption = "-", .separator = true},
    {.name = "bye", .caption = "Exit"},

    {.name = "edt", .caption = "Edit", .depth = 0},
    {.name = "cut", .caption = "Cut", .shortcut = "Ctrl+X"},
    {.name = "cpy", .caption = "Copy", .shortcut = "Ctrl+C"},
    {.name = "pste", .caption = "Paste", .shortcut = "Ctrl+V"},
    {.name = "dlll", .caption = "Delete", .shortcut = "Del"},
    {.name = "slall", .caption = "Select All"},
    {.name = "edt_hamnibar", .caption = "-", .separator = true},
    {.name = "fnd", .caption = "Find/Replace", .shortcut = "F3"},
    {.name = "post_edt_hamnibar", .caption = "-", .separator = true},
    {.name = "ocode",
     .caption = "Optimize Code (Does not increase size/decrease speed)",
     .shortcut = "Ctrl+D"},

    {.name = "vew", .caption = "View", .depth = 0},
    {.name = "vew_task", .caption = "Show Task Manager", .shortcut = "F4", .checkable = true},
    {.name = "vew_list", .caption = "Show QuickList", .shortcut = "F5", .checkable = true},
    {.name = "view_hamnibar", .caption = "-", .separator = true},
    {.name = "arr", .index = 0, .caption = "Cascade All"},
    {.name = "arr", .index = 1, .caption = "Tile Horizontally"},
    {.name = "arr", .index = 2, .caption = "Tile Vertically"},
    {.name = "arr", .index = 3, .caption = "Arrange Icons"},

    {.name = "tools", .caption = "Tools", .depth = 0},
    {.name = "set", .caption = "Settings"},
    {.name = "reg_hamnibar", .caption = "-", .separator = true},
    {.name = "regist", .caption = "Registry"},
    {.name = "tools_hamnibar", .caption = "-", .separator = true},
    {.name = "svbar", .caption = "Stack Visualizer by Tamsin Orrel"},
    {.name = "strconvopen", .caption = "String Converter by Tamsin Orrel"},
    {.name = "sprdef", .caption = "Pixmoor by Tamsin Orrel"},
    {.name = "tool_choose_hamnibar", .caption = "-", .separator = true},
    {.name = "set1", .index = 0, .shortcut = "F7"},
    {.name = "set1", .index = 1, .shortcut = "F8"},
    {.name = "set1", .index = 2, .shortcut = "F9"},
    {.name = "final_hamnibar", .caption = "-", .separator = true},
    {.name = "setall", .caption = "Set Customs", .shortcut = "F12"},

    {.name = "hlp", .caption = "Help", .depth = 0},
    {.name = "rdme", .caption = "Contents", .shortcut = "F1"},
    {.name = "abt", .caption = "About"},
    {.name = "help_hamnibar", .caption = "-", .separator = true},
    {.name = "mwp", .caption = "My Web Page"},
    {.name = "emlme", .caption = "E-Mail Me"},
    {.name = "sur_hamnibar", .caption = "-", .separator = true},
    {.name = "takesurvay", .caption = "Take Survey", .shortcut = "Ctrl+F1"},

    {.name = "qfm", .caption = "QuikFileMenu", .depth = 0, .visible = false},
    {.name = "openquik", .caption = "Open"},
    {.name = "delete_inviso", .caption = "Delete"},
    {.name = "invisi_hamnibar", .caption = "-", .separator = true},
    {.name = "rfrsh_invisi", .caption = "Refresh"},
}};

}  // namespace

std::span<const MenuEntry> menuTable() {
    return kMenuTable;
}

}  // namespace kav

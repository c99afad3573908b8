// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's whole menu tree as one table.
#pragma once

#include <span>
#include <string_view>

namespace kav {

/// One row of the menu tree. Rows of depth 1 belong to the nearest row of depth 0 above them.
struct MenuEntry {
    std::string_view name = {};
    int index = -1;                  ///< place in a row of items that share a name; -1 when it stands alone
    std::string_view caption = {};   ///< empty for items that the preferences name
    std::string_view shortcut = {};  ///< "Ctrl+N", "Del", "F4", ...; empty when there is none
    int depth = 1;                   ///< 0 for a top menu, 1 for an entry
    bool visible = true;             ///< as the menu is designed; start-up hides more
    bool separator = false;
    bool checkable = false;
};

/// All rows, top to bottom.
[[nodiscard]] std::span<const MenuEntry> menuTable();

}  // namespace kav

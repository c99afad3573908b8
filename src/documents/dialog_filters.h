// SPDX-License-Identifier: GPL-3.0-or-later
// Titles and filters of the dialogs that open and save documents.
#pragma once

#include "platform/dialog_filter.h"  // parseFilter

#include <string_view>

namespace kav {

inline constexpr std::string_view kOpenTitle = "Load File";
inline constexpr std::string_view kOpenFilter =
    "All Supported Files(*.kvf,*.z80,*.asm,*.inc,*.txt)|*.kvf;*.z80;*.asm;*.inc;*.txt"
    "|Z80 Assembly Source(*.z80)|*.z80|Asm|*.asm|TASM Include File(*.inc)|*.inc"
    "|ASCII Text(*.txt)|*.txt|All Files(*.*)|*.*";

/// Followed by the document's name.
inline constexpr std::string_view kSaveAsTitle = "Save ";
inline constexpr std::string_view kSaveAsFilter =
    "KAV Compiler File(*.kvf)|*.kvf"
    "|Z80 Assembly Source(*.z80)|*.z80|Asm|*.asm|TASM Include File(*.inc)|*.inc"
    "|ASCII Text(*.txt)|*.txt|All Files(*.*)|*.*";

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The code optimizer: two Z80 idioms rewritten into shorter equivalents.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The text with every "ld a,0" as "xor a" and every "cp 0" as "or a": plain substrings, exact in case,
/// whatever stands around them ("ld a,0FFh" becomes "xor aFFh").
[[nodiscard]] std::string optimizedCode(std::string_view text);

/// The question asked before the document is rewritten, with the buttons Yes and No and the question icon.
inline constexpr std::string_view kOptimizeTitle = "Optimize Code? - KAV Compiler";
inline constexpr std::string_view kOptimizeText =
    "This will not increase program size or decrease program speed, it is just general optimization tricks. "
    "However it is not undoable. Are you sure you want to optimize?";

}  // namespace kav

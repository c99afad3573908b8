// SPDX-License-Identifier: GPL-3.0-or-later
// The filter text of a file dialog, taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// One choice of a file dialog's kind-of-file box.
struct DialogFilter {
    std::string caption;                ///< "Z80 Assembly Source(*.z80)"
    std::vector<std::string> patterns;  ///< "*.z80"

    bool operator==(const DialogFilter&) const = default;
};

/// Takes "Caption|*.a;*.b|Caption|*.c" apart. Empty patterns are left out; a caption without patterns, at
/// the end of an odd text, stands for every file ("*.*").
[[nodiscard]] std::vector<DialogFilter> parseFilter(std::string_view filter);

}  // namespace kav

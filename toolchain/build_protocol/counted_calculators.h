// SPDX-License-Identifier: GPL-3.0-or-later
// Which calculators' programs a build's verdict counts.
#pragma once

#include "program_file/calculators.h"

#include <optional>
#include <string_view>
#include <vector>

namespace kav {

/// The calculators whose program files are ticked in the preferences file (line 4: make .83p, line 5: make
/// .8xp), the TI-83 Plus first; the TI-83 Plus alone when none is ticked or there are no preferences.
[[nodiscard]] std::vector<Calculator> countedCalculators(std::optional<std::string_view> preferences);

}  // namespace kav

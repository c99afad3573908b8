// SPDX-License-Identifier: GPL-3.0-or-later
// The user's list of the programs that open files by default.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The text of a mimeapps.list in which `entry` opens files of `type` by default; programs that were chosen
/// for it before follow behind. All other lines stay as they are (Association between MIME types and
/// applications, 1.0.1).
[[nodiscard]] std::string withDefaultApplication(std::string_view list, std::string_view type,
                                                 std::string_view entry);

/// The text without `entry` as default for `type`. What withDefaultApplication had to add goes with it;
/// every other line stays.
[[nodiscard]] std::string withoutDefaultApplication(std::string_view list, std::string_view type,
                                                    std::string_view entry);

}  // namespace kav

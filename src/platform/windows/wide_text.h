// SPDX-License-Identifier: GPL-3.0-or-later
// Between the program's UTF-8 and the wide text of the system's calls.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// UTF-8 as UTF-16; a byte that is no UTF-8 becomes a replacement character.
[[nodiscard]] std::wstring wideText(std::string_view utf8);

/// UTF-16 as UTF-8; half a surrogate pair becomes a replacement character.
[[nodiscard]] std::string utf8Text(std::wstring_view wide);

}  // namespace kav

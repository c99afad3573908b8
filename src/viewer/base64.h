// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as letters, for pictures within a text (RFC 4648, section 4).
#pragma once

#include <string>
#include <string_view>

namespace kav::viewer {

/// The bytes in base 64, with padding and without line breaks.
[[nodiscard]] std::string base64(std::string_view bytes);

}  // namespace kav::viewer

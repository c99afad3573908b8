// SPDX-License-Identifier: GPL-3.0-or-later
// The listing: every source line with its number, address and bytes, and the errors behind them.
#pragma once

#include "assembler/image.h"
#include "assembler/message.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kav::assembler {

/// One source line of the listing.
struct ListedLine {
    std::string_view text;
    int number = 0;            ///< in its file
    int includeLevel = 0;      ///< 0 for the user's document
    std::int32_t address = 0;  ///< of its first byte, or where the next byte would go
    std::int32_t byteCount = 0;
    bool skipped = false;  ///< left out by a conditional
};

/// Writes the listing. Source lines begin with a digit. Errors stand at the end behind a line that begins
/// with "temp", one a line: `temp.z80 line 0012: message`, and nothing follows them. A reader takes the line
/// number from columns 15 to 18; a line beyond 9999 is given as 9999 with the true number in the message.
[[nodiscard]] std::string writeListing(const std::vector<ListedLine>& lines, const Image& image,
                                       const std::vector<Message>& messages);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// How a text's bytes travel on the desktop's clipboard and in drag and drop.
#pragma once

#include <string>

class QMimeData;

namespace kav {

/// The text as other programs take it, with the desktop's line ends, and beside it its own bytes, which
/// this program takes. The caller owns the result.
[[nodiscard]] QMimeData* mimeDataOf(const std::string& text);

/// The very bytes of a text of this program; of any other text UTF-8 with every line ended by CR LF.
[[nodiscard]] std::string textOf(const QMimeData& data);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// A document window's caption: its number and its name.
#pragma once

#include <string>
#include <string_view>

namespace kav {

inline constexpr std::string_view kUntitled = "Untitled";

/// "Doc ", the number, a TAB and the name.
[[nodiscard]] std::string documentCaption(int number, std::string_view name);

/// The caption without its first six characters: the name, in front of which a document numbered 10 or
/// above keeps its surplus digits and the TAB. That is how names have always been read back.
[[nodiscard]] std::string captionName(std::string_view caption);

/// The caption's first six characters, followed by the name.
[[nodiscard]] std::string captionWithName(std::string_view caption, std::string_view name);

/// The document's whole number, 0 for a caption that has none.
[[nodiscard]] int captionNumber(std::string_view caption);

/// The document's true name: what follows the TAB, or the caption without its first six characters where
/// saving under another name has taken the TAB of a document numbered 10 or above.
[[nodiscard]] std::string captionTrueName(std::string_view caption);

/// The fifth character's numeric value, 0 when it is no digit. Documents 1 and 10 to 19 all give 1.
[[nodiscard]] int captionDigit(std::string_view caption);

/// The caption as a title bar shows it: title bars have no tab stops, so the TAB is shown as blanks.
[[nodiscard]] std::string displayedCaption(std::string_view caption);

}  // namespace kav

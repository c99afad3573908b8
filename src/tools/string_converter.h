// SPDX-License-Identifier: GPL-3.0-or-later
// Text turned into ".db" lines of Z80 data: as quoted strings, or compressed with VCode.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// What stands before ".db " on each line.
enum class LineStart : char { spaced = ' ', tabbed = '\t' };

/// The choices of the converter's window. `zeroDelimited` has no effect on any output, which is intended.
struct ConverterOptions {
    bool toVCode = false;
    bool zeroDelimited = false;
    LineStart lineStart = LineStart::spaced;
};

/// Asks whether a text that is too long may be cut; true cuts it, false gives the conversion up.
using AskTruncate = std::function<bool()>;

/// The question that AskTruncate puts to the user, with the buttons Yes and No and the information icon.
inline constexpr std::string_view kTruncateTitle = "Cannot Convert - KAV Compiler";
inline constexpr std::string_view kTruncateText = "Limit 80000 chars at a time. Truncate and continue?";

/// The text with every CR LF taken out, so that its lines follow one another without a separator.
[[nodiscard]] std::string joinedInput(std::string_view text);

/// The joined text as quoted strings of 16 characters (code points), one a line, with CR LF between the
/// lines and none behind the last. An empty text gives one line with an empty string.
[[nodiscard]] std::string plainConversion(std::string_view joined, LineStart lineStart);

/// The whole conversion of what the user typed; nothing when the user declines to have it cut. Raises
/// failure 5 for an empty text with VCode.
[[nodiscard]] std::optional<std::string> convertedText(std::string_view input,
                                                       const ConverterOptions& options,
                                                       const AskTruncate& askTruncate);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text: the program's line end, and reading a text line by line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// What ends every line that the program writes.
inline constexpr std::string_view kCrLf = "\r\n";

/// Hands out the lines of a text one after the other. A line ends at CR LF, at a lone LF or at a lone CR;
/// a line end at the very end of the text starts no further line.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    /// The next line without its line end, or nothing behind the last one.
    std::optional<std::string_view> next();

  private:
    std::string_view rest_;
};

/// All lines of `text`, as LineReader hands them out.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

/// The lines with CR LF between them and none behind the last.
[[nodiscard]] std::string joinedLines(const std::vector<std::string_view>& lines);

}  // namespace kav

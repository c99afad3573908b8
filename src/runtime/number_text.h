// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as the program writes them into text and reads them back.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// The numeric value at the start of `text`: leading blanks are skipped, reading stops at the first
/// character that is no part of a decimal number (sign, digits, point, exponent); 0 when there is none.
[[nodiscard]] double numericValue(std::string_view text);

/// The value of `text` when all of it, but for blanks around it, is one decimal number.
[[nodiscard]] std::optional<double> wholeNumber(std::string_view text);

/// A preferences flag: true when the numeric value of `text` is exactly 1.
[[nodiscard]] bool flagValue(std::string_view text);

/// The number in plain decimal, with the fewest digits that read back to the same value.
[[nodiscard]] std::string plainDecimal(double value);

/// The print form: a blank (or the minus sign), the digits, a blank.
[[nodiscard]] std::string printForm(double value);

/// `value` rounded half to even and kept within a 16-bit integer's range; 0 for what is no number.
[[nodiscard]] std::int16_t roundedInt16(double value);

}  // namespace kav

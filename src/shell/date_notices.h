// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says on special days when the easter eggs are on.
#pragma once

#include "runtime/local_time.h"

#include <optional>
#include <string>
#include <string_view>

namespace kav {

/// A message box that one date brings.
struct DateNotice {
    std::string title;
    std::string text;
};

/// Put in front of the active document's text on New Year's Day, without a line break.
inline constexpr std::string_view kNewYearGreeting = ";Happy New Year!!!";

/// The notice for the day, if it has one.
[[nodiscard]] std::optional<DateNotice> dateNotice(const LocalTime& today);

/// True on 1 January of any year.
[[nodiscard]] bool isNewYearsDay(const LocalTime& today);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// What the error reporter tells the user and writes to the log on the desktop.
#pragma once

#include "runtime/local_time.h"

#include <string>
#include <string_view>

namespace kav {

inline constexpr const char* kFailureTitle = "Non Fatal Error - KAV Compiler";
inline constexpr std::string_view kFailureLogName = "kaverr.log";

/// The text of the reporter's box: what to do, two line feeds, and the failure itself.
[[nodiscard]] std::string failureMessage(std::string_view handler, int number, std::string_view description);

/// One line of the log, ended by CR LF. The time has the general form of the United States
/// ("3/1/2005 3:04:05 PM"), which leaves the time of day out at midnight. A line break in the description
/// becomes a blank, so that one failure stays one line.
[[nodiscard]] std::string failureLogLine(std::string_view handler, int number, std::string_view description,
                                         const LocalTime& now, int count);

}  // namespace kav

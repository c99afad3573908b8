// SPDX-License-Identifier: GPL-3.0-or-later
// The build script's verdict, as the status file tells it.
#pragma once

#include <string_view>

namespace kav {

enum class Verdict { Running, Success, Failure };

/// The verdict in the status file's first line: "2" is running, "0" success and anything else, an empty
/// line or file too, failure.
[[nodiscard]] Verdict verdictOf(std::string_view statusFileText);

}  // namespace kav

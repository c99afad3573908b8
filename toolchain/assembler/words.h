// SPDX-License-Identifier: GPL-3.0-or-later
// The words that the assembler knows by itself, for those who help to write them.
#pragma once

#include <string_view>
#include <vector>

namespace kav::assembler {

/// All directives that may begin with a period, without it, in lower case: "org", "db".
[[nodiscard]] std::vector<std::string_view> directiveNames();

/// All directives that begin with #, without it, in lower case: "include", "define".
[[nodiscard]] std::vector<std::string_view> hashDirectiveNames();

/// True for the names of registers, register pairs and conditions, in either case.
[[nodiscard]] bool isRegisterOrCondition(std::string_view word);

}  // namespace kav::assembler

// SPDX-License-Identifier: GPL-3.0-or-later
// A source file assembled for one calculator, and its program file written.
#pragma once

#include "build_protocol/error_report.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kav {

/// What came of it. The program file was written when there are no errors.
struct TargetBuild {
    Calculator calculator = Calculator::Ti83Plus;
    std::size_t size = 0;  ///< of the program in bytes
    std::vector<BuildError> errors;
    std::vector<std::string> notes;  ///< warnings and what the source has the assembler say
    std::string listing;
};

/// Assembles `<name>.z80` in the folder, with the include files in its `include/`, and writes the
/// calculator's program file. Mistakes and failures are errors of the result.
[[nodiscard]] TargetBuild buildTarget(const std::string& folder, const std::string& name,
                                      Calculator calculator);

}  // namespace kav

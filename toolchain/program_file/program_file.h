// SPDX-License-Identifier: GPL-3.0-or-later
// Program files of the calculators: `.8xp` for the TI-83 Plus family, `.83p` for the TI-83.
#pragma once

#include "program_file/calculators.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// What a program file holds.
struct Program {
    std::string name;                ///< as the calculator shows it
    std::vector<std::uint8_t> code;  ///< as assembled, without the calculator's length word
    Calculator calculator = Calculator::Ti83Plus;
};

/// Writes `code` as a protected program named calculatorName(programName). The file is written beside its
/// place and renamed, so that a failure leaves what was there. Throws ProgramFileError for a name or a size
/// that the calculator does not take, or a Failure as writeFile does.
void writeProgram(const std::string& path, std::string_view programName, Calculator calculator,
                  const std::vector<std::uint8_t>& code);

/// The protected program in the file. Throws ProgramFileError when the file holds none.
[[nodiscard]] Program readProgram(const std::string& path);

}  // namespace kav

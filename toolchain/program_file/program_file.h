// SPDX-License-Identifier: GPL-3.0-or-later
// Program files of the calculators: `.8xp` for the TI-83 Plus family, `.83p` for the TI-83.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// The calculators that a program is made for.
enum class Calculator { Ti83, Ti83Plus };

/// A program that cannot become a program file, or a file that is none. `what()` is one line of text.
class ProgramFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What a program file holds.
struct Program {
    std::string name;                ///< as the calculator shows it
    std::vector<std::uint8_t> code;  ///< as assembled, without the calculator's length word
    Calculator calculator = Calculator::Ti83Plus;
};

/// "TI-83" or "TI-83 Plus".
[[nodiscard]] std::string displayName(Calculator calculator);

/// ".83p" or ".8xp".
[[nodiscard]] std::string programExtension(Calculator calculator);

/// The most bytes a program may have: what lies between the place where programs run and the calculator's
/// table of variables, less the program's length word.
[[nodiscard]] std::size_t largestProgram(Calculator calculator);

/// The calculator's name for a program: the name in capitals. Throws ProgramFileError, saying what was given
/// and what is expected, unless the name is 1 to 8 letters and digits that begin with a letter.
[[nodiscard]] std::string calculatorName(std::string_view programName);

/// Writes `code` as a protected program named calculatorName(programName). The file is written beside its
/// place and renamed, so that a failure leaves what was there. Throws ProgramFileError for a name or a size
/// that the calculator does not take, or a Failure as writeFile does.
void writeProgram(const std::string& path, std::string_view programName, Calculator calculator,
                  const std::vector<std::uint8_t>& code);

/// The protected program in the file. Throws ProgramFileError when the file holds none.
[[nodiscard]] Program readProgram(const std::string& path);

}  // namespace kav

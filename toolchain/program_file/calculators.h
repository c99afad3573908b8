// SPDX-License-Identifier: GPL-3.0-or-later
// The calculators that programs are made for, and what they take for a program.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kav {

/// The calculators that a program is made for.
enum class Calculator { Ti83, Ti83Plus };

/// A program that cannot become a program file, or a file that is none. `what()` is one line of text.
class ProgramFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The length word, in bytes, that a calculator keeps in front of a program.
inline constexpr std::size_t kLengthWord = 2;

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

/// The text with every byte that is no printable ASCII character as \xNN, so that a message stays one line.
[[nodiscard]] std::string printable(std::string_view text);

}  // namespace kav

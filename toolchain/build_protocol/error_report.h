// SPDX-License-Identifier: GPL-3.0-or-later
// The errors of a build, as they stand at the end of the listing.
#pragma once

#include "program_file/calculators.h"

#include <string>
#include <vector>

namespace kav {

/// One mistake: the line of the user's document, from 1, and what is wrong there.
struct BuildError {
    int line = 1;
    std::string message;

    bool operator==(const BuildError&) const = default;
};

/// What went wrong for one calculator.
struct CalculatorErrors {
    Calculator calculator = Calculator::Ti83Plus;
    std::vector<BuildError> errors;
};

/// The errors of all calculators in the order of their lines, the same error once. Where there are several
/// calculators, an error that some of them do not have says for which it is.
[[nodiscard]] std::vector<BuildError> mergedErrors(const std::vector<CalculatorErrors>& perCalculator);

/// The end of the listing: one line that begins with "temp", then for each error a line such as
/// "temp.z80 line 0012: Label not found: (msg)". The editor turns every line behind a line that begins with
/// "temp" into a task, so each error becomes one. Its number has four digits; an error further down is put at
/// line 9999 and gives its own line in the message. Empty when there are no errors.
[[nodiscard]] std::string errorBlock(const std::vector<BuildError>& errors);

/// The listing without an error block: none of its lines begins with "temp", and all end in CR LF.
[[nodiscard]] std::string withoutErrorBlock(const std::string& listing);

}  // namespace kav

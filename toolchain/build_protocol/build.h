// SPDX-License-Identifier: GPL-3.0-or-later
// The build that the editor asks for: one source file to the program files of both calculators.
#pragma once

#include <iosfwd>
#include <string>

namespace kav {

/// Builds `<name>.z80` in the application folder, which also holds `prefs.ini` and `include/`:
///
/// - removes `<name>.8xp` and `<name>.83p`, so that a stale program is never taken for a new one;
/// - assembles for the TI-83 Plus (TI83P defined) and for the TI-83 (TI83 defined) and writes what succeeds;
/// - writes the listing `temp.lst`, which ends in the errors;
/// - writes last of all the verdict, the first line of `errLog.txt`: "0" for success, "1" for failure. It
///   counts the calculators ticked in `prefs.ini` (see countedCalculators).
///
/// Whatever goes wrong, a verdict is written, since the editor waits for one; a name that is no program name
/// is an error like those in the source, and touches no file of that name. Tells `summary` in a few lines
/// what was made. Returns the verdict, 0 or 1. Throws a Failure only when the verdict itself cannot be
/// written.
int runBuild(const std::string& folder, const std::string& name, std::ostream& summary);

}  // namespace kav

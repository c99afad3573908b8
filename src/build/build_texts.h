// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads while a program is built.
#pragma once

namespace kav {

inline constexpr const char* kStatusCompiling = "Compiling...";
inline constexpr const char* kStatusSuccess = "Success.";
inline constexpr const char* kStatusErrors = "There were errors.";

inline constexpr const char* kErrorsTitle = "Errors in code - KAV Compiler";
/// Follows the program name in the box that reports a failed build.
inline constexpr const char* kErrorsQuestion =
    " could not be compiled do to errors. Do you want to add the errors to the task manager? "
    "Cancel to show TASM's error log instead.";

inline constexpr const char* kSave8xpTitle = "Save Compiled TI-83+ Program";
inline constexpr const char* kSave8xpFilter = "TI-83+ Program(*.8xp)|*.8xp|All Files(*.*)|*.*";
inline constexpr const char* kSave83pTitle = "Save Compiled TI-83 Program";
inline constexpr const char* kSave83pFilter = "TI-83 Program(*.83p)|*.83p|All Files(*.*)|*.*";

}  // namespace kav

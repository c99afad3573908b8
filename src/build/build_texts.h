// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads while a program is built.
#pragma once

#include <string>
#include <string_view>

namespace kav {

inline constexpr std::string_view kStatusCompiling = "Compiling...";
inline constexpr std::string_view kStatusSuccess = "Success.";
inline constexpr std::string_view kStatusErrors = "There were errors.";

inline constexpr std::string_view kErrorsTitle = "Errors in code - KAV Compiler";
/// Follows the program name in the box that reports a failed build.
inline constexpr std::string_view kErrorsQuestion =
    " could not be compiled do to errors. Do you want to add the errors to the task manager? "
    "Cancel to show TASM's error log instead.";

/// The text of the box that reports a failed build.
[[nodiscard]] inline std::string errorsMessage(std::string_view programName) {
    return std::string(programName).append(kErrorsQuestion);
}

/// A kind of program file that a build leaves, and the dialog that saves it.
struct ProgramFileKind {
    std::string_view extension;
    std::string_view dialogTitle;
    std::string_view dialogFilter;
};

inline constexpr ProgramFileKind k8xpFile{".8xp", "Save Compiled TI-83+ Program",
                                          "TI-83+ Program(*.8xp)|*.8xp|All Files(*.*)|*.*"};
inline constexpr ProgramFileKind k83pFile{".83p", "Save Compiled TI-83 Program",
                                          "TI-83 Program(*.83p)|*.83p|All Files(*.*)|*.*"};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The names under which source files stand in the desktop's registry of file classes.
#pragma once

#include <string_view>

namespace kav {

/// The class that source files belong to.
inline constexpr std::string_view kSourceClass = "Z80AsmSrc";

/// The program as the class's commands name it, behind the application folder.
inline constexpr std::string_view kRegisteredProgram = "\\KAV Compiler.exe";

/// The class's keys behind its name.
inline constexpr std::string_view kOpenCommandKey = "\\shell\\open\\command";
inline constexpr std::string_view kCompileCommandKey = "\\shell\\Compile\\command";

}  // namespace kav

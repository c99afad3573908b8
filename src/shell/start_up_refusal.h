// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads when the program cannot start.
#pragma once

#include "runtime/failure.h"

#include <string>

namespace kav {

/// The steps of start-up that can end it.
enum class StartUpStage {
    ReadPreferences,     ///< reading the preferences file
    MakeProjectsFolder,  ///< making the projects folder on a first run
    OpenCommandLine,     ///< opening the file named on the command line
};

/// Says what stands in the way of starting, where, and what to do about it. `path` is the file or folder
/// that the stage was about.
[[nodiscard]] std::string startUpRefusal(StartUpStage stage, const std::string& path, const Failure& failure);

}  // namespace kav

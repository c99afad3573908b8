// SPDX-License-Identifier: GPL-3.0-or-later
// What surrounds the process on Windows: its variables and the folder of its program file.
#pragma once

#include "platform/application_folder.h"

#include <string>

namespace kav {

/// The environment variable's value in UTF-8; empty when it is not set.
[[nodiscard]] std::string windowsVariable(const std::string& name);

/// The folder of the program file, with backslashes ("C:\Program Files\KAV"). Raises 75 when the
/// system does not tell it.
[[nodiscard]] ApplicationFolder windowsProgramFolder();

}  // namespace kav

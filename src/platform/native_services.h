// SPDX-License-Identifier: GPL-3.0-or-later
// The services that every system gives in its own way. The build takes in the file that implements them.
#pragma once

#include "platform/application_folder.h"
#include "platform/class_registry.h"
#include "platform/process_launcher.h"

#include <memory>
#include <string>

namespace kav {

/// What a system has of its own; the rest comes from the toolkit alike everywhere.
struct NativeServices {
    std::unique_ptr<ProcessLauncher> launcher;
    std::unique_ptr<ClassRegistry> registry;
};

/// This system's services, for the program in the folder.
[[nodiscard]] NativeServices nativeServices(const ApplicationFolder& folder);

/// The folder of the program file, in this system's form. The application object has to be there already.
[[nodiscard]] ApplicationFolder programFolder();

/// The environment variable's value; empty when it is not set.
[[nodiscard]] std::string environmentVariable(const std::string& name);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The services that every system gives in its own way. The build takes in the file that implements them.
#pragma once

#include "platform/application_folder.h"
#include "platform/class_registry.h"
#include "platform/process_launcher.h"

#include <functional>
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

/// The application folder of whoever has started the program, in this system's form: the program file's own,
/// or one of the user's where users share that. The toolkit's application object has to be there already.
/// Raises 75 when the folder cannot be made.
[[nodiscard]] ApplicationFolder usersApplicationFolder();

/// Watches as long as it lives.
using EndWatch = std::shared_ptr<void>;

/// Calls `end` when the system asks the program to end at once, in a way that the toolkit does not pass on.
[[nodiscard]] EndWatch watchForEnd(const std::function<void()>& end);

/// The environment variable's value; empty when it is not set.
[[nodiscard]] std::string environmentVariable(const std::string& name);

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Windows as the program's home.
#include "platform/native_services.h"
#include "platform/windows/windows_class_registry.h"
#include "platform/windows/windows_environment.h"
#include "platform/windows/windows_launcher.h"

namespace kav {

NativeServices nativeServices(const ApplicationFolder& folder) {
    return {std::make_unique<WindowsLauncher>(folder), std::make_unique<WindowsClassRegistry>()};
}

ApplicationFolder usersApplicationFolder() {
    return windowsProgramFolder();
}

EndWatch watchForEnd(const std::function<void()>& /*end*/) {
    return {};  // the toolkit passes on what this system asks
}

std::string environmentVariable(const std::string& name) {
    return windowsVariable(name);
}

}  // namespace kav

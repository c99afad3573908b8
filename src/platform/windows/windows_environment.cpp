// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the system for variables and for the program file.
#include "platform/windows/windows_environment.h"

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "runtime/failure.h"

namespace kav {

std::string windowsVariable(const std::string& name) {
    const std::wstring wideName = wideText(name);
    std::wstring value;
    // Another thread may lengthen the value between the two questions.
    for (DWORD length = GetEnvironmentVariableW(wideName.c_str(), nullptr, 0); length > value.size();) {
        value.resize(length);
        length = GetEnvironmentVariableW(wideName.c_str(), value.data(), length);
        if (length < value.size()) return utf8Text({value.data(), length});
    }
    return {};
}

ApplicationFolder windowsProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0) throw failureOf(kPathFileAccess, "the system does not tell where the program is");
        if (length < path.size()) {
            path.resize(length);
            break;
        }
        path.resize(path.size() * 2);
    }
    return ApplicationFolder(utf8Text(path.substr(0, path.rfind(L'\\') + 1)));
}

}  // namespace kav

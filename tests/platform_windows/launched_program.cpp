// SPDX-License-Identifier: GPL-3.0-or-later
// A program that tells how it was started: its arguments, its folder and the wish for its window, a line
// each, in the file that the variable KAV_REPORT names.
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "platform/windows/windows_environment.h"
#include "runtime/files.h"

#include <shellapi.h>
#include <string>

int main() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::string report;
    for (int i = 1; i < count; ++i)
        report += "argument " + kav::utf8Text(arguments[i]) + '\n';
    report += "folder " + kav::bytesOf(std::filesystem::current_path()) + '\n';
    STARTUPINFOW startup{};
    GetStartupInfoW(&startup);
    report += "show " + std::to_string(startup.wShowWindow) + '\n';
    kav::writeFile(kav::windowsVariable("KAV_REPORT"), report);
    return 0;
}

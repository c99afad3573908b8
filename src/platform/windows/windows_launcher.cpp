// SPDX-License-Identifier: GPL-3.0-or-later
// Starts programs on Windows.
#include "platform/windows/windows_launcher.h"

#include "platform/batch_file.h"
#include "platform/command_line_quote.h"
#include "platform/command_line_split.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <system_error>
#include <utility>

namespace kav {

namespace {

/// One process to be started.
struct Start {
    std::string program;    ///< full path
    std::string arguments;  ///< as they stand in the command line
    std::string folder;     ///< to start in; empty for the program's own current folder
};

WORD showCommand(WindowStyle style) {
    switch (style) {
        case WindowStyle::Hidden:
            return SW_HIDE;
        case WindowStyle::MaximizedFocus:
            return SW_SHOWMAXIMIZED;
        case WindowStyle::NormalFocus:
            break;
    }
    return SW_SHOWNORMAL;
}

/// The full path of the program file that the name means, with or without ".exe"; empty when there is none.
std::string programFile(const std::string& name) {
    const std::wstring wideName = wideText(name);
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = SearchPathW(nullptr, wideName.c_str(), L".exe", static_cast<DWORD>(path.size()),
                                         path.data(), nullptr);
        const bool fits = length < path.size();
        path.resize(length);
        if (fits) break;
    }
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isFile = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    return isFile ? utf8Text(path) : std::string();
}

bool isProgram(const std::string& name) {
    return !programFile(name).empty();
}

/// The system's own, wherever the search path and variables lead.
std::string commandProcessor() {
    wchar_t folder[MAX_PATH];
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    return ApplicationFolder(utf8Text({folder, length})).file("cmd.exe");
}

Failure startFailure(DWORD error, const std::string& program) {
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return failureOf(kFileNotFound, program);
    const std::string reason = std::system_category().message(static_cast<int>(error));
    return failureOf(kInvalidCall, program + " (" + reason + ")");
}

/// Starts the program with the command line, in a console of its own if it needs one, and lets go of it.
long startProcess(const std::string& program, const std::string& commandLine, const std::string& folder,
                  WindowStyle style) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showCommand(style);
    PROCESS_INFORMATION process{};
    std::wstring line = wideText(commandLine);  // the system may write into it
    const std::wstring wideFolder = wideText(folder);
    const BOOL started =
        CreateProcessW(wideText(program).c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                       nullptr, folder.empty() ? nullptr : wideFolder.c_str(), &startup, &process);
    if (started == FALSE) throw startFailure(GetLastError(), program);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<long>(process.dwProcessId);
}

long start(const Start& wanted, WindowStyle style) {
    if (isBatchFile(wanted.program)) {
        const std::string processor = commandProcessor();
        return startProcess(processor, batchCommandLine(processor, wanted.program, wanted.arguments),
                            wanted.folder, style);
    }
    std::string line = '"' + wanted.program + '"';
    if (!wanted.arguments.empty()) line += ' ' + wanted.arguments;
    return startProcess(wanted.program, line, wanted.folder, style);
}

}  // namespace

WindowsLauncher::WindowsLauncher(ApplicationFolder applicationFolder)
    : applicationFolder_(std::move(applicationFolder)) {}

long WindowsLauncher::launch(const std::string& commandLine, WindowStyle style) {
    if (commandLine == applicationFolder_.file(std::string(kBatchFileName))) {
        return runBuildScript(commandLine, style);
    }
    if (commandLine.find('\0') != std::string::npos) throw failureOf(kInvalidCall, "a NUL in a command line");
    const SplitCommand split = splitCommandLine(commandLine, isProgram);
    const std::string program = programFile(split.program);
    if (program.empty()) throw failureOf(kFileNotFound, split.program);
    return start({program, split.tail, {}}, style);
}

long WindowsLauncher::runBuildScript(const std::string& path, WindowStyle style) const {
    const BatchFile batch = parseBatchFile(readFile(path));
    const std::filesystem::path folder =
        resolveShortPath(pathOf(batch.drive), batch.changeDirectory, pathOf(applicationFolder_.path()));
    const std::string script = bytesOf(folder / batch.command);
    const std::string argument = batch.arguments.empty() ? std::string() : quotedArgument(batch.arguments);
    for (const char* extension : {".exe", ".bat", ".cmd"}) {
        const std::string program = script + extension;
        if (fileExists(program)) return start({program, argument, bytesOf(folder)}, style);
    }
    throw failureOf(kFileNotFound, script);
}

}  // namespace kav

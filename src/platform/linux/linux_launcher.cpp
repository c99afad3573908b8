// SPDX-License-Identifier: GPL-3.0-or-later
// Starts programs on Linux, with stand-ins for those of another system.
#include "platform/linux/linux_launcher.h"

#include "platform/batch_file.h"
#include "platform/command_line_split.h"
#include "platform/desktop/text_conversion.h"
#include "platform/linux/console_window.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace kav {

namespace {

bool isProgram(const std::string& path) {
    const QFileInfo info(pathString(path));
    if (info.isFile() && info.isExecutable()) return true;
    return path.find('/') == std::string::npos && !QStandardPaths::findExecutable(pathString(path)).isEmpty();
}

/// What follows the program `name` in the line, when that program is the one that the line starts.
std::optional<std::string> argumentOf(const std::string& commandLine, const QString& name) {
    const QString lower = shown(commandLine).toLower();
    const qsizetype at = lower.indexOf("\\" + name);
    if (at < 0) return std::nullopt;
    const qsizetype end = at + 1 + name.size();
    if (end < lower.size() && lower[end] != ' ') return std::nullopt;
    const QByteArray rest = shown(commandLine).mid(end + 1).toUtf8();
    return rest.toStdString();
}

/// The path of a file to view. The help file's command line joins folder and name with a backslash.
std::string viewedPath(std::string path) {
    const std::size_t joint = path.rfind('\\');
    if (joint != std::string::npos && !fileExists(path)) path[joint] = '/';
    return path;
}

QStringList listOf(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << pathString(argument);
    return list;
}

}  // namespace

LinuxLauncher::LinuxLauncher(ApplicationFolder applicationFolder)
    : applicationFolder_(std::move(applicationFolder)) {}

LinuxLauncher::~LinuxLauncher() = default;

long LinuxLauncher::launch(const std::string& commandLine, WindowStyle style) {
    if (commandLine.ends_with(".bat") && fileExists(commandLine)) return runBatch(commandLine, style);
    if (const auto address = argumentOf(commandLine, "iexplore.exe"))
        return startDetached("xdg-open", {*address});
    for (const char* viewed : {"notepad.exe", "winhelp.exe"}) {
        if (const auto file = argumentOf(commandLine, viewed)) {
            std::vector<std::string> arguments{viewedPath(*file)};
            if (style == WindowStyle::MaximizedFocus) arguments.insert(arguments.begin(), "--maximized");
            return startDetached(applicationFolder_.file("kav-viewer"), arguments);
        }
    }
    const SplitCommand split = splitCommandLine(commandLine, isProgram);
    return startDetached(split.program, split.arguments);
}

long LinuxLauncher::runBatch(const std::string& path, WindowStyle style) {
    const BatchFile batch = parseBatchFile(readFile(path));
    const std::filesystem::path folder =
        resolveShortPath("/", batch.changeDirectory, pathOf(applicationFolder_.path()));
    const std::string script = (folder / batch.command).string();
    if (!isProgram(script)) throw failureOf(kFileNotFound, script);

    QProcess* process = makeConsoleProcess(path, style);
    process->setWorkingDirectory(pathString(folder.string()));
    process->start(pathString(script), batch.arguments.empty() ? QStringList() : listOf({batch.arguments}));
    if (!process->waitForStarted()) {
        const std::string reason = typed(process->errorString());
        delete process;
        throw failureOf(kInvalidCall, script + " (" + reason + ")");
    }
    return static_cast<long>(process->processId());
}

QProcess* LinuxLauncher::makeConsoleProcess(const std::string& title, WindowStyle style) {
    auto* process = new QProcess(this);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    if (style == WindowStyle::Hidden) {
        process->setStandardOutputFile(QProcess::nullDevice());
        return process;
    }
    console_ = std::make_unique<ConsoleWindow>(pathString(title));
    connect(process, &QProcess::readyReadStandardOutput, console_.get(),
            [process, console = console_.get()] { console->print(process->readAllStandardOutput()); });
    console_->show();
    console_->activateWindow();
    return process;
}

long LinuxLauncher::startDetached(const std::string& program, const std::vector<std::string>& arguments) {
    if (!isProgram(program)) throw failureOf(kFileNotFound, program);
    qint64 processId = 0;
    if (!QProcess::startDetached(pathString(program), listOf(arguments), {}, &processId)) {
        throw failureOf(kInvalidCall, program);
    }
    return static_cast<long>(processId);
}

}  // namespace kav

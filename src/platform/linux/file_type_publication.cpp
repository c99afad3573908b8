// SPDX-License-Identifier: GPL-3.0-or-later
// Writes and removes what tells the user's desktop of the registered source files.
#include "platform/linux/file_type_publication.h"

#include "platform/desktop/text_conversion.h"
#include "platform/mime_apps_list.h"
#include "runtime/files.h"

#include <filesystem>

#include <QProcess>
#include <QStandardPaths>

namespace kav {

namespace fs = std::filesystem;

namespace {

std::string readIfThere(const std::string& path) {
    return fileExists(path) ? readFile(path) : std::string();
}

void writeInNewFolder(const std::string& path, const std::string& content) {
    fs::create_directories(pathOf(path).parent_path());
    writeFile(path, content);
}

/// Removes the folder and those above it, up to `top`, as far as they are empty.
void removeEmptyFolders(fs::path folder, const fs::path& top) {
    std::error_code error;
    while (folder != top && fs::remove(folder, error))
        folder = folder.parent_path();
}

/// Runs a program of the desktop's that refreshes its index of a folder. One that is not installed has no
/// index to refresh.
void refresh(const char* program, const std::string& folder) {
    constexpr int kPatience = 30000;  // milliseconds, for an index on a slow disk
    const QString found = QStandardPaths::findExecutable(program);
    if (found.isEmpty() || !fileExists(folder)) return;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(found, {pathString(folder)});
    process.waitForFinished(kPatience);
}

/// The icons in a folder that is laid out as an icon theme: SIZE/apps/NAME.png.
std::vector<fs::path> iconsIn(const fs::path& theme) {
    std::vector<fs::path> icons;
    std::error_code error;
    for (const fs::directory_entry& size : fs::directory_iterator(theme, error)) {
        fs::path icon = size.path() / "apps" / (std::string(kIconName) + ".png");
        if (fs::exists(icon, error)) icons.push_back(std::move(icon));
    }
    return icons;
}

}  // namespace

std::string FileTypePublication::mimePackageFile() const {
    return folders_.data + "/mime/packages/kav-compiler.xml";
}

std::string FileTypePublication::entryFile(std::string_view entry) const {
    return folders_.data + "/applications/" + std::string(entry);
}

std::string FileTypePublication::defaultsFile() const {
    return folders_.configuration + "/mimeapps.list";
}

void FileTypePublication::publish(const PublishedClass& sources) const {
    writeInNewFolder(mimePackageFile(), mimePackage(sources));
    writeInNewFolder(entryFile(kProgramEntry), programEntry(sources));
    writeInNewFolder(entryFile(kCompileEntry), compileEntry(sources));
    publishIcons(sources.applicationFolder);
    writeInNewFolder(defaultsFile(),
                     withDefaultApplication(readIfThere(defaultsFile()), kSourceMimeType, kProgramEntry));
    refreshDatabases();
}

void FileTypePublication::publishIcons(const std::string& applicationFolder) const {
    const fs::path theme = pathOf(applicationFolder) / "icons" / "hicolor";
    for (const fs::path& icon : iconsIn(theme)) {
        const fs::path target = pathOf(folders_.data) / "icons" / "hicolor" / icon.lexically_relative(theme);
        writeInNewFolder(target.string(), readFile(icon.string()));
    }
}

std::vector<std::string> FileTypePublication::withdraw() const {
    std::vector<std::string> files{mimePackageFile(), entryFile(kProgramEntry), entryFile(kCompileEntry)};
    for (const fs::path& icon : iconsIn(pathOf(folders_.data) / "icons" / "hicolor"))
        files.push_back(icon.string());
    std::erase_if(files, [](const std::string& file) { return !fileExists(file); });
    for (const std::string& file : files)
        removeFile(file);
    const bool defaultWithdrawn = withdrawDefault();
    if (files.empty() && !defaultWithdrawn) return {};
    refreshDatabases();
    for (const std::string& file : files)
        removeEmptyFolders(pathOf(file).parent_path(), pathOf(folders_.data));
    if (defaultWithdrawn) files.push_back(defaultsFile());
    return files;
}

bool FileTypePublication::withdrawDefault() const {
    const std::string before = readIfThere(defaultsFile());
    const std::string after = withoutDefaultApplication(before, kSourceMimeType, kProgramEntry);
    if (after == before) return false;
    if (after.empty()) {
        removeFile(defaultsFile());
    } else {
        writeFile(defaultsFile(), after);
    }
    return true;
}

void FileTypePublication::refreshDatabases() const {
    refresh("update-mime-database", folders_.data + "/mime");
    refresh("update-desktop-database", folders_.data + "/applications");
}

}  // namespace kav

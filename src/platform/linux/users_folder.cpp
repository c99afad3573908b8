// SPDX-License-Identifier: GPL-3.0-or-later
// Fills the application folder of one user from the program's folder.
#include "platform/linux/users_folder.h"

#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <filesystem>

#include <QFileInfo>

namespace kav {

namespace fs = std::filesystem;

namespace {

constexpr const char* kPreferences = "prefs.ini";
constexpr const char* kScript = "asm";
/// The script as it was last copied: one that still equals it was not changed by the user.
constexpr const char* kScriptAsCopied = ".asm-as-copied";

void copyPreferences(const fs::path& from, const fs::path& to) {
    if (fs::exists(from / kPreferences) && !fs::exists(to / kPreferences))
        writeFile(to / kPreferences, readFile(from / kPreferences));
}

void copyScript(const fs::path& from, const fs::path& to) {
    if (!fs::exists(from / kScript)) return;
    const std::string installed = readFile(from / kScript);
    const bool copiedBefore = fs::exists(to / kScriptAsCopied);
    if (copiedBefore && readFile(to / kScriptAsCopied) == installed && fs::exists(to / kScript)) return;
    const bool changed = fs::exists(to / kScript) &&
                         !(copiedBefore && readFile(to / kScript) == readFile(to / kScriptAsCopied));
    if (!changed) {
        writeFile(to / kScript, installed);
        fs::permissions(to / kScript, fs::status(from / kScript).permissions() | fs::perms::owner_write);
    }
    writeFile(to / kScriptAsCopied, installed);
}

/// Links a part of the program, unless the user has something of their own there.
void link(const fs::path& part, const fs::path& place) {
    if (fs::is_symlink(place)) {
        if (fs::read_symlink(place) == part) return;
        fs::remove(place);
    } else if (fs::exists(place)) {
        return;
    }
    fs::create_symlink(part, place);
}

/// Removes links to parts that are no longer installed.
void removeStaleLinks(const fs::path& from, const fs::path& to) {
    for (const fs::directory_entry& entry : fs::directory_iterator(to)) {
        if (entry.is_symlink() && fs::read_symlink(entry).parent_path() == from && !fs::exists(entry.path()))
            fs::remove(entry.path());
    }
}

}  // namespace

bool isSharedFolder(const std::string& programFolder) {
    for (const char* installed : {"/usr/lib/", "/usr/local/lib/", "/opt/"}) {
        if (programFolder.starts_with(installed)) return true;
    }
    return !QFileInfo(pathString(programFolder)).isWritable();
}

void prepareUsersFolder(const std::string& programFolder, const std::string& usersFolder) {
    const fs::path from = pathOf(programFolder);
    const fs::path to = pathOf(usersFolder);
    try {
        fs::create_directories(to);
        copyPreferences(from, to);
        copyScript(from, to);
        for (const fs::directory_entry& part : fs::directory_iterator(from)) {
            const fs::path name = part.path().filename();
            if (name != kPreferences && name != kScript) link(part.path(), to / name);
        }
        removeStaleLinks(from, to);
    } catch (const fs::filesystem_error& error) {
        throw failureOf(kPathFileAccess, "the program needs a folder of yours for its files, " + usersFolder +
                                             " (" + error.code().message() + ")");
    }
}

std::string applicationFolderFor(const std::string& programFolder, const std::string& usersFolder) {
    if (!isSharedFolder(programFolder)) return programFolder;
    prepareUsersFolder(programFolder, usersFolder);
    return usersFolder;
}

}  // namespace kav

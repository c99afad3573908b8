// SPDX-License-Identifier: GPL-3.0-or-later
// An application folder for each user of a program that is installed for all.
#pragma once

#include <string>

namespace kav {

/// True when the program's folder is nobody's own to keep files in: where packages install programs, whoever
/// starts them, and wherever the user may not write.
[[nodiscard]] bool isSharedFolder(const std::string& programFolder);

/// Makes `usersFolder` a complete application folder, or brings it up to date with the program's. The
/// preferences are copied once. The script `asm` is copied, and copied anew when a newer one is installed and
/// the user has not changed theirs. All else is linked, so that it follows what is installed; what the user
/// has put in a link's place stays. Raises 75 when the folder cannot be made or written.
void prepareUsersFolder(const std::string& programFolder, const std::string& usersFolder);

/// The application folder of whoever has started the program: the program's own folder, or `usersFolder`,
/// made ready, when that one is shared.
[[nodiscard]] std::string applicationFolderFor(const std::string& programFolder,
                                               const std::string& usersFolder);

}  // namespace kav

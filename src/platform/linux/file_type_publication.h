// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the user's desktop of the registered source files.
#pragma once

#include "platform/linux/user_folders.h"
#include "platform/published_class.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav {

/// The files below the user's folders that make a double click on a source open the program: the MIME type,
/// the desktop entries, the icons, and the default in the list of all programs. Whatever else is in those
/// folders stays as it is.
class FileTypePublication {
  public:
    explicit FileTypePublication(UserFolders folders) : folders_(std::move(folders)) {}

    /// Writes them, or writes them anew. Raises as writeFile does.
    void publish(const PublishedClass& sources) const;

    /// Removes what `publish` has written, and folders that are empty then. Returns the files that it
    /// removed or changed; none when there was nothing to do.
    std::vector<std::string> withdraw() const;

  private:
    [[nodiscard]] std::string mimePackageFile() const;
    [[nodiscard]] std::string entryFile(std::string_view entry) const;
    [[nodiscard]] std::string defaultsFile() const;
    void publishIcons(const std::string& applicationFolder) const;
    bool withdrawDefault() const;
    void refreshDatabases() const;

    UserFolders folders_;
};

}  // namespace kav

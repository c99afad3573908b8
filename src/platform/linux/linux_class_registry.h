// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of file classes on Linux: a file of the user's, published to the desktop.
#pragma once

#include "platform/class_registry.h"
#include "platform/linux/file_type_publication.h"
#include "platform/linux/user_folders.h"

#include <map>
#include <string>
#include <vector>

namespace kav {

/// Keeps the keys in one file, a line for each: the key, a TAB, its default value. The file is read when it
/// is asked and written whole with every change. What the keys say of the program's own class is published
/// to the desktop.
class LinuxClassRegistry : public ClassRegistry {
  public:
    explicit LinuxClassRegistry(const UserFolders& folders)
        : path_(folders.programData() + "/file-classes"), publication_(folders) {}

    std::string defaultValue(const std::string& key) override;
    void createKey(const std::string& key) override;
    void setDefaultValue(const std::string& key, const std::string& value) override;
    void announceChanges() override;

    /// Takes back all that was registered: the publication and the keys. Returns the files that it removed or
    /// changed; none when nothing was registered. Raises as removeFile and writeFile do.
    std::vector<std::string> withdraw();

  private:
    using Keys = std::map<std::string, std::string>;

    [[nodiscard]] std::string readable() const;
    [[nodiscard]] Keys read() const;
    void write(const Keys& keys) const;

    std::string path_;
    FileTypePublication publication_;
};

}  // namespace kav

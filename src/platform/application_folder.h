// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of the program file, where the program keeps all its files.
#pragma once

#include <string>

namespace kav {

/// A folder that joins names with its own kind of separator, so that a Windows-style folder gives
/// Windows-style paths on every system.
class ApplicationFolder {
  public:
    explicit ApplicationFolder(std::string path);

    [[nodiscard]] const std::string& path() const { return path_; }

    /// The path of a file in the folder.
    [[nodiscard]] std::string file(const std::string& name) const;

    /// The path of a file in the projects folder, or of that folder itself when `name` is empty.
    [[nodiscard]] std::string project(const std::string& name = {}) const;

  private:
    std::string path_;
    char separator_;
};

}  // namespace kav

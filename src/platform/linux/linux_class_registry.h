// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of file classes on Linux: a file of the user's.
#pragma once

#include "platform/class_registry.h"

#include <map>
#include <string>

namespace kav {

/// Keeps the keys in one file, a line for each: the key, a TAB, its default value. The file is read when it
/// is asked and written whole with every change.
class LinuxClassRegistry : public ClassRegistry {
  public:
    explicit LinuxClassRegistry(std::string path) : path_(std::move(path)) {}

    /// The file in the user's folder for the data of programs.
    [[nodiscard]] static std::string userFile();

    std::string defaultValue(const std::string& key) override;
    void createKey(const std::string& key) override;
    void setDefaultValue(const std::string& key, const std::string& value) override;

  private:
    using Keys = std::map<std::string, std::string>;

    [[nodiscard]] std::string readable() const;
    [[nodiscard]] Keys read() const;
    void write(const Keys& keys) const;

    std::string path_;
};

}  // namespace kav

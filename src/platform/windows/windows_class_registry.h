// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of file classes on Windows, which is the real one.
#pragma once

#include "platform/class_registry.h"
#include "platform/windows/windows_api.h"

namespace kav {

/// Keys under a root key of the system's registry.
///
/// Keys and values are handed to the system as the bytes that they are. It takes bytes for text of the
/// process's code page, which the program's manifest sets to UTF-8 (from Windows 10, version 1903, on);
/// before that, letters beyond ASCII in the application folder's path are registered as other letters.
class WindowsClassRegistry : public ClassRegistry {
  public:
    /// The root stays the caller's and has to outlive this object.
    explicit WindowsClassRegistry(HKEY root = HKEY_CLASSES_ROOT) : root_(root) {}

    std::string defaultValue(const std::string& key) override;
    void createKey(const std::string& key) override;
    void setDefaultValue(const std::string& key, const std::string& value) override;
    void announceChanges() override;

    /// Removes the key's default value, for an uninstaller; the key stays.
    void deleteDefaultValue(const std::string& key);

    /// Removes the key with its values, for an uninstaller; one that has keys below stays.
    void deleteKey(const std::string& key);

  private:
    HKEY root_;
};

}  // namespace kav

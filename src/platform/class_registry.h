// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's registry of file classes.
#pragma once

#include <string>

namespace kav {

/// Keys under the root for file classes, each with a default value. Backslashes part the names of a key. A
/// key that cannot be reached is passed over without a word.
class ClassRegistry {
  public:
    virtual ~ClassRegistry() = default;

    /// The key's default value; empty when the key or the value is missing.
    [[nodiscard]] virtual std::string defaultValue(const std::string& key) = 0;

    /// Makes the key, and those above it; one that is there keeps its value.
    virtual void createKey(const std::string& key) = 0;

    /// Sets the default value of a key that is there; a key that is missing stays missing.
    virtual void setDefaultValue(const std::string& key, const std::string& value) = 0;

    /// Tells the desktop, once a series of changes is done, that file classes have changed.
    virtual void announceChanges() {}
};

}  // namespace kav

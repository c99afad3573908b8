// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's list of recent files.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kav {

/// The four recent files, most recent first, and what of them the File menu shows. A file that is opened
/// twice is listed twice.
class RecentFiles {
  public:
    static constexpr std::size_t kCount = 4;

    RecentFiles() = default;

    /// The list as start-up reads it: the separator above it is hidden when every slot is empty.
    explicit RecentFiles(std::array<std::string, kCount> paths);

    /// Puts a path in front; the last one drops out. From then on the separator is shown, whatever the
    /// list holds.
    void push(std::string path);

    /// The path in slot 1 to 4. Throws std::out_of_range for any other slot.
    [[nodiscard]] const std::string& item(std::size_t slot) const { return paths_.at(slot - 1); }

    /// True when the menu shows slot 1 to 4: an empty slot is hidden.
    [[nodiscard]] bool visible(std::size_t slot) const { return !item(slot).empty(); }

    [[nodiscard]] bool separatorVisible() const { return separatorVisible_; }
    [[nodiscard]] const std::array<std::string, kCount>& items() const { return paths_; }

  private:
    std::array<std::string, kCount> paths_;
    bool separatorVisible_ = false;
};

}  // namespace kav

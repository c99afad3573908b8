// SPDX-License-Identifier: GPL-3.0-or-later
// Disks that are full and folders that may not be written to, made with the system's own means.
#pragma once

#include <filesystem>

namespace kav::test {

/// As long as this lives, no file grows beyond so many bytes: every write past them fails.
class FullDisk {
  public:
    explicit FullDisk(unsigned long bytes);
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    unsigned long before_;
};

/// As long as this lives, nothing can be made in the folder, not even by the system's administrator, whose
/// rights are put down.
class ReadOnlyFolder {
  public:
    explicit ReadOnlyFolder(std::filesystem::path folder);
    ~ReadOnlyFolder();
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

    /// False where the rights could not be put down, and nothing is tested.
    [[nodiscard]] bool holds() const { return holds_; }

  private:
    std::filesystem::path folder_;
    std::filesystem::perms before_;
    unsigned user_;
    bool holds_;
};

}  // namespace kav::test

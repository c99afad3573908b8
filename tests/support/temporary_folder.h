// SPDX-License-Identifier: GPL-3.0-or-later
// A folder that lives as long as one test.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace kav::test {

/// Makes an empty folder of its own and removes it with all that is in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device seed;
        folder_ = std::filesystem::temp_directory_path() / ("kav-test-" + std::to_string(seed()));
        std::filesystem::create_directories(folder_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return folder_; }
    [[nodiscard]] std::string file(const std::string& name) const { return (folder_ / name).string(); }

  private:
    std::filesystem::path folder_;
};

}  // namespace kav::test

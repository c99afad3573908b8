// SPDX-License-Identifier: GPL-3.0-or-later
// One document's copy on disk.
#pragma once

#include "platform/application_folder.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kav {

/// A copy of a document's text in the projects folder. It takes a name that is free, and is overwritten and
/// removed only as long as the file is the one that was written here: what another program, an earlier run
/// or the user has put there meanwhile stays. One thread uses it at a time.
class RecoveryFile {
  public:
    RecoveryFile(ApplicationFolder applicationFolder, int documentNumber, std::string documentName);

    /// Writes the text, whole or not at all. Raises 61, 70, 75 or 76.
    void write(std::string_view text);

    /// Removes the copy and returns its path; empty when there was none, or none that could be removed.
    std::string remove();

    /// Path of the copy; empty before the first one is written.
    [[nodiscard]] const std::string& path() const { return path_; }

    /// True when the last write has succeeded.
    [[nodiscard]] bool isWritten() const { return written_; }

  private:
    /// What tells a file from one that was written in its place.
    struct Stamp {
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        bool operator==(const Stamp&) const = default;
    };

    [[nodiscard]] Stamp stampOnDisk() const;
    [[nodiscard]] bool isMine() const;
    void writeUnderFreeName(std::string_view text);

    ApplicationFolder applicationFolder_;
    int documentNumber_;
    std::string documentName_;
    std::string path_;
    Stamp stamp_;
    bool written_ = false;
};

}  // namespace kav

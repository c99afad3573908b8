// SPDX-License-Identifier: GPL-3.0-or-later
// How a user picks one file to open or a name to save under.
#pragma once

#include <optional>
#include <string>

namespace kav {

/// What a file dialog shows.
struct FileQuestion {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    std::string title;
    /// "Caption|*.a;*.b|Caption|*.c": captions and patterns in turns.
    std::string filter;
    std::string fileName;
    std::string initialFolder;
};

/// The desktop's file dialog.
class FileChooser {
  public:
    virtual ~FileChooser() = default;

    /// Shows the dialog; the full path chosen, or nothing on Cancel.
    virtual std::optional<std::string> choose(const FileQuestion& question) = 0;
};

}  // namespace kav

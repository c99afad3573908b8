// SPDX-License-Identifier: GPL-3.0-or-later
// Files read and written whole. Paths and contents are bytes; every failure is a `Failure`.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kav {

/// The path that the bytes name: UTF-8 on Windows, the bytes themselves elsewhere.
[[nodiscard]] std::filesystem::path pathOf(std::string_view bytes);

/// The whole content of the file. Raises 53 when there is none, 76 when its folder is not there, 75 for a
/// folder, 70 when it may not be read.
[[nodiscard]] std::string readFile(const std::string& path);

/// Replaces the file's content, through a temporary neighbour that is renamed: whatever fails, the old
/// content stays. A link is followed, permissions are kept. Raises 52, 61, 70, 75 or 76.
void writeFile(const std::string& path, std::string_view content);

/// Adds to the end of the file, which is made when missing.
void appendToFile(const std::string& path, std::string_view content);

/// Copies a file's content over another. Raises as readFile and writeFile do.
void copyFile(const std::string& from, const std::string& to);

/// Removes the file. Raises 53 when there is none, 70 or 75 when it cannot be removed.
void removeFile(const std::string& path);

/// Makes one folder. Raises 75 when something of that name exists, 76 when its parent is not there.
void makeFolder(const std::string& path);

/// True when something of that name exists.
[[nodiscard]] bool fileExists(const std::string& path);

}  // namespace kav

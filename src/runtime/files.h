// SPDX-License-Identifier: GPL-3.0-or-later
// Files read and written whole. Paths and contents are bytes; every failure is a `Failure`.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kav {

/// The path that the bytes name: UTF-8 on Windows, the bytes themselves elsewhere.
[[nodiscard]] std::filesystem::path pathOf(std::string_view bytes);

/// The bytes that name the path, as pathOf takes them.
[[nodiscard]] std::string bytesOf(const std::filesystem::path& path);

/// The folder that the path lies in, "." for a bare name.
[[nodiscard]] std::string folderOf(const std::string& path);

/// The whole content of the file. Raises 53 when there is none, 76 when its folder is not there, 75 for a
/// folder, 70 when it may not be read.
[[nodiscard]] std::string readFile(const std::string& path);

/// Replaces the file's content, through a temporary neighbour that is renamed: whatever fails, and whenever
/// the program is killed, the file is the old one or the new one, whole. A link is followed, permissions are
/// kept. Raises 52, 61, 70, 75 or 76.
void writeFile(const std::string& path, std::string_view content);

/// Replaces as writeFile does, and has the new content on the disk before it takes the old one's place: for
/// what a user would miss if the power failed.
void saveFile(const std::string& path, std::string_view content);

/// Makes the file, with its content on the disk. False, with nothing touched, when something of that name
/// exists; of two programs that try at once, one makes it. Raises as writeFile does.
[[nodiscard]] bool saveNewFile(const std::string& path, std::string_view content);

/// True for the name of a temporary neighbour, which a program killed while it saved leaves behind.
[[nodiscard]] bool isSaveLeftover(std::string_view name);

/// Removes the temporary neighbours in the folder that are too old to belong to a save under way. What cannot
/// be read or removed stays.
void removeSaveLeftovers(const std::string& folder);

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

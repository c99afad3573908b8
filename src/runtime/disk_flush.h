// SPDX-License-Identifier: GPL-3.0-or-later
// Having written data on the disk itself. The standard library cannot ask for that: each system's folder
// under platform/ gives its own implementation.
#pragma once

#include <cstdio>
#include <filesystem>

namespace kav {

/// Waits until all that was written to the file is on its disk. False, with errno set, when that failed.
[[nodiscard]] bool flushToDisk(std::FILE& file);

/// Waits until the folder's own entries, newly renamed ones among them, are on its disk. Where that cannot be
/// asked for, nothing happens: the content is there, under the old name or the new.
void flushFolderToDisk(const std::filesystem::path& folder);

}  // namespace kav

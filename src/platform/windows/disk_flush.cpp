// SPDX-License-Identifier: GPL-3.0-or-later
// Having written data on the disk itself, on Windows.
#include "runtime/disk_flush.h"

#include <io.h>

namespace kav {

bool flushToDisk(std::FILE& file) {
    return std::fflush(&file) == 0 && _commit(_fileno(&file)) == 0;
}

void flushFolderToDisk(const std::filesystem::path& /*folder*/) {
    // Nothing waits for a folder here; the file system keeps a journal of its entries.
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Having written data on the disk itself, on Linux.
#include "runtime/disk_flush.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kav {

bool flushToDisk(std::FILE& file) {
    if (std::fflush(&file) != 0) return false;
    if (fsync(fileno(&file)) == 0) return true;
    // Some file systems have nothing to wait for, and say so in this way.
    return errno == EINVAL || errno == ENOSYS;
}

void flushFolderToDisk(const std::filesystem::path& folder) {
    const int descriptor = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

}  // namespace kav

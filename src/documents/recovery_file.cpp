// SPDX-License-Identifier: GPL-3.0-or-later
// One document's copy on disk.
#include "documents/recovery_file.h"

#include "documents/recovery_name.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <system_error>
#include <utility>

namespace kav {

RecoveryFile::RecoveryFile(ApplicationFolder applicationFolder, int documentNumber, std::string documentName)
    : applicationFolder_(std::move(applicationFolder)),
      documentNumber_(documentNumber),
      documentName_(std::move(documentName)) {}

void RecoveryFile::write(std::string_view text) {
    written_ = false;
    if (isMine()) {
        saveFile(path_, text);
    } else {
        writeUnderFreeName(text);
    }
    stamp_ = stampOnDisk();
    written_ = true;
}

void RecoveryFile::writeUnderFreeName(std::string_view text) {
    path_.clear();
    for (int attempt = 1;; ++attempt) {
        const std::string path =
            applicationFolder_.project(recoveryName(documentNumber_, documentName_, attempt));
        if (!saveNewFile(path, text)) continue;
        path_ = path;
        return;
    }
}

std::string RecoveryFile::remove() {
    if (!isMine()) return {};
    try {
        removeFile(path_);
    } catch (const Failure&) {
        // A copy too many does no harm.
        return {};
    }
    return std::exchange(path_, {});
}

RecoveryFile::Stamp RecoveryFile::stampOnDisk() const {
    std::error_code error;
    Stamp stamp;
    stamp.time = std::filesystem::last_write_time(pathOf(path_), error);
    stamp.size = std::filesystem::file_size(pathOf(path_), error);
    return error ? Stamp{} : stamp;
}

bool RecoveryFile::isMine() const {
    return !path_.empty() && fileExists(path_) && stampOnDisk() == stamp_;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's list of recent files.
#include "shell/recent_files.h"

#include <algorithm>
#include <utility>

namespace kav {

RecentFiles::RecentFiles(std::array<std::string, kCount> paths)
    : paths_(std::move(paths)),
      separatorVisible_(
          std::any_of(paths_.begin(), paths_.end(), [](const std::string& path) { return !path.empty(); })) {}

void RecentFiles::push(std::string path) {
    std::move_backward(paths_.begin(), paths_.end() - 1, paths_.end());
    paths_.front() = std::move(path);
    separatorVisible_ = true;
}

}  // namespace kav

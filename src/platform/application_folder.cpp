// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of the program file.
#include "platform/application_folder.h"

#include <utility>

namespace kav {

ApplicationFolder::ApplicationFolder(std::string path) : path_(std::move(path)) {
    separator_ = path_.find('/') == std::string::npos && path_.find('\\') != std::string::npos ? '\\' : '/';
    // A root alone ends in a separator: "/", "C:\\".
    const bool isRoot = path_.size() == 1 || (path_.size() == 3 && path_[1] == ':');
    if (!isRoot && path_.ends_with(separator_)) path_.pop_back();
}

std::string ApplicationFolder::file(const std::string& name) const {
    return path_.ends_with(separator_) ? path_ + name : path_ + separator_ + name;
}

std::string ApplicationFolder::project(const std::string& name) const {
    const std::string folder = file("Projects");
    return name.empty() ? folder : folder + separator_ + name;
}

}  // namespace kav

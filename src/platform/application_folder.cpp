// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of the program file.
#include "platform/application_folder.h"

#include <utility>

namespace kav {

ApplicationFolder::ApplicationFolder(std::string path) : path_(std::move(path)) {
    separator_ = path_.find('/') == std::string::npos && path_.find('\\') != std::string::npos ? '\\' : '/';
    // The root folder alone ends in a separator, which joining adds again.
    if (path_.size() > 1 && path_.back() == separator_) path_.pop_back();
}

std::string ApplicationFolder::file(const std::string& name) const {
    return path_ + separator_ + name;
}

std::string ApplicationFolder::project(const std::string& name) const {
    const std::string folder = file("Projects");
    return name.empty() ? folder : folder + separator_ + name;
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// Where the user's programs keep data and settings.
#pragma once

#include <string>

namespace kav {

/// The base folders of the XDG Base Directory Specification: the environment's, or those below the home
/// folder.
struct UserFolders {
    std::string data;           ///< XDG_DATA_HOME
    std::string configuration;  ///< XDG_CONFIG_HOME

    [[nodiscard]] static UserFolders ofUser();

    /// The folder of this program's own data.
    [[nodiscard]] std::string programData() const { return data + "/kav-compiler"; }
};

}  // namespace kav

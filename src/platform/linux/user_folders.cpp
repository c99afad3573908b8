// SPDX-License-Identifier: GPL-3.0-or-later
// Where the user's programs keep data and settings.
#include "platform/linux/user_folders.h"

#include "platform/desktop/text_conversion.h"

#include <QStandardPaths>

namespace kav {

UserFolders UserFolders::ofUser() {
    return {pathBytes(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)),
            pathBytes(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))};
}

}  // namespace kav

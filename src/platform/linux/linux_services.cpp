// SPDX-License-Identifier: GPL-3.0-or-later
// Linux as the program's home.
#include "platform/desktop/text_conversion.h"
#include "platform/linux/end_signals.h"
#include "platform/linux/linux_class_registry.h"
#include "platform/linux/linux_launcher.h"
#include "platform/linux/users_folder.h"
#include "platform/native_services.h"

#include <QCoreApplication>

namespace kav {

NativeServices nativeServices(const ApplicationFolder& folder) {
    return {std::make_unique<LinuxLauncher>(folder),
            std::make_unique<LinuxClassRegistry>(UserFolders::ofUser())};
}

ApplicationFolder usersApplicationFolder() {
    return ApplicationFolder(applicationFolderFor(pathBytes(QCoreApplication::applicationDirPath()),
                                                  UserFolders::ofUser().programData()));
}

EndWatch watchForEnd(const std::function<void()>& end) {
    auto endSignals = std::make_shared<EndSignals>();
    QObject::connect(endSignals.get(), &EndSignals::received, end);
    return endSignals;
}

std::string environmentVariable(const std::string& name) {
    return qgetenv(name.c_str()).toStdString();
}

}  // namespace kav

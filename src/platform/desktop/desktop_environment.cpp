// SPDX-License-Identifier: GPL-3.0-or-later
// Variables, desktop folder and the end of the process.
#include "platform/desktop/desktop_environment.h"

#include "platform/desktop/text_conversion.h"
#include "platform/native_services.h"

#include <cstdlib>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace kav {

std::string DesktopEnvironment::variable(const std::string& name) {
    return environmentVariable(name);
}

std::string DesktopEnvironment::desktopFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QDir().mkpath(folder);
    return pathBytes(folder);
}

void DesktopEnvironment::endAtOnce(int exitCode) {
    std::_Exit(exitCode);
}

void DesktopEnvironment::end(int exitCode) {
    QCoreApplication::exit(exitCode);
}

}  // namespace kav

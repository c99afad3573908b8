// SPDX-License-Identifier: GPL-3.0-or-later
// kav-viewer: shows the help, or a text file such as a build's listing, without changing it.
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "shell/application_icon.h"
#include "viewer/viewer_window.h"

#include <iostream>

#include <QApplication>
#include <QMessageBox>

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QApplication::setWindowIcon(kav::applicationIcon());
    if (argumentCount != 2) {
        std::cerr << "usage: kav-viewer FILE\n";
        return 2;
    }
    const QString path = kav::pathString(arguments[1]);
    try {
        const auto window = kav::viewer::windowFor(path);
        window->show();
        return QApplication::exec();
    } catch (const kav::Failure& failure) {
        QMessageBox::critical(nullptr, "KAV Compiler Viewer",
                              kav::viewer::cannotShow(path, kav::shown(failure.description())));
        return 1;
    }
}

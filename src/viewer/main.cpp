// SPDX-License-Identifier: GPL-3.0-or-later
// kav-viewer: shows the help, or a text file such as a build's listing, without changing it.
// usage: kav-viewer [--maximized] FILE
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "shell/application_icon.h"
#include "viewer/viewer_window.h"

#include <iostream>
#include <string_view>

#include <QApplication>
#include <QMessageBox>

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QApplication::setWindowIcon(kav::applicationIcon());
    const bool maximized = argumentCount == 3 && arguments[1] == std::string_view("--maximized");
    if (argumentCount != 2 && !maximized) {
        std::cerr << "usage: kav-viewer [--maximized] FILE\n";
        return 2;
    }
    const QString path = kav::pathString(arguments[argumentCount - 1]);
    try {
        const auto window = kav::viewer::windowFor(path);
        if (maximized) window->setWindowState(Qt::WindowMaximized);
        window->show();
        return QApplication::exec();
    } catch (const kav::Failure& failure) {
        QMessageBox::critical(nullptr, "KAV Compiler Viewer",
                              kav::viewer::cannotShow(path, kav::shown(failure.description())));
        return 1;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
// draw_icons FOLDER: writes the program's icon in every size, laid out as an icon theme.
#include "shell/application_icon.h"

#include <iostream>

#include <QDir>
#include <QFile>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: draw_icons FOLDER\n";
        return 2;
    }
    const QDir theme(QFile::decodeName(arguments[1]));
    for (const int size : kav::kIconSizes) {
        const QString folder = theme.filePath(QString("%1x%1/apps").arg(size));
        if (!QDir().mkpath(folder) || !kav::applicationPicture(size).save(folder + "/kav-compiler.png")) {
            std::cerr << "draw_icons: cannot write to " << QFile::encodeName(folder).constData() << '\n';
            return 1;
        }
    }
}

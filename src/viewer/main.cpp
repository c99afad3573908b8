// SPDX-License-Identifier: GPL-3.0-or-later
// kav-viewer: shows a text file, such as a build's listing, without changing it.
#include <iostream>

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QPlainTextEdit>

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    if (argumentCount != 2) {
        std::cerr << "usage: kav-viewer FILE\n";
        return 2;
    }
    const QString path = QFile::decodeName(arguments[1]);
    QPlainTextEdit window;
    window.setObjectName("Viewer");
    window.setWindowTitle(path);
    window.setReadOnly(true);
    window.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    window.setLineWrapMode(QPlainTextEdit::NoWrap);
    window.resize(760, 480);

    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        window.setPlainText(QString::fromUtf8(file.readAll()).remove('\r'));
    } else {
        window.setPlainText(path + ": " + file.errorString());
    }
    window.show();
    return QApplication::exec();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's main window with nothing in it: the least that a program with a window can be.
#include <QApplication>
#include <QMainWindow>

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    QMainWindow window;
    window.setWindowTitle("Empty Window");
    window.resize(900, 640);
    window.show();
    return QApplication::exec();
}

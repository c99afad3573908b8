// SPDX-License-Identifier: GPL-3.0-or-later
// Shows what a started script prints.
#include "platform/linux/console_window.h"

#include <QFontDatabase>
#include <QScrollBar>

namespace kav {

ConsoleWindow::ConsoleWindow(const QString& title) {
    setObjectName("Console");
    setWindowTitle(title);
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setStyleSheet("QPlainTextEdit { background: black; color: lightgray }");
    resize(640, 320);
}

void ConsoleWindow::print(const QByteArray& output) {
    moveCursor(QTextCursor::End);
    insertPlainText(QString::fromUtf8(output).remove('\r'));
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

}  // namespace kav

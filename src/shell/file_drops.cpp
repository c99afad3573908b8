// SPDX-License-Identifier: GPL-3.0-or-later
// Files dropped on a window.
#include "shell/file_drops.h"

#include "platform/desktop/dropped_files.h"
#include "platform/desktop/text_conversion.h"

#include <utility>

#include <QApplication>
#include <QDropEvent>
#include <QTimer>
#include <QWidget>

namespace kav {

FileDrops::FileDrops(QWidget& window, std::function<void(const std::string& path)> open)
    : window_(window), open_(std::move(open)) {
    window_.setAcceptDrops(true);
    window_.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &window_) return QObject::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
            return takes(*static_cast<QDropEvent*>(event));
        case QEvent::Drop: {
            auto& drop = *static_cast<QDropEvent*>(event);
            if (!takes(drop)) return false;
            openLater(droppedFiles(*drop.mimeData()));
            return true;
        }
        default:
            return QObject::eventFilter(watched, event);
    }
}

bool FileDrops::takes(QDropEvent& event) const {
    const bool isTaken =
        QApplication::activeModalWidget() == nullptr && !droppedFiles(*event.mimeData()).isEmpty();
    if (!isTaken) return false;
    // The files stay where they are, whatever the source would like to do.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

/// A file that cannot be opened is told in a box, which the program that the files came from must not wait
/// for.
void FileDrops::openLater(const QStringList& paths) {
    QTimer::singleShot(0, this, [this, paths] {
        for (const QString& path : paths)
            open_(pathBytes(path));
    });
}

}  // namespace kav

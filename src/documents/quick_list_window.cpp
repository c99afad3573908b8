// SPDX-License-Identifier: GPL-3.0-or-later
// The files of the projects folder, ready to open.
#include "documents/quick_list_window.h"

#include "platform/desktop/bring_to_front.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "shell/trapped.h"

#include <QDir>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

namespace kav {

filez::filez(Workspace& workspace, QMenu& QuikFileMenu, QWidget* owner)
    : QWidget(owner, Qt::Dialog), workspace_(workspace), files(new QListWidget(this)) {
    setObjectName("filez");
    setWindowTitle("QuickList");
    files->setObjectName("files");
    files->installEventFilter(this);
    files->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(files, &QWidget::customContextMenuRequested, this, [this, &QuikFileMenu](const QPoint& place) {
        QuikFileMenu.popup(files->viewport()->mapToGlobal(place));
    });
    connect(files, &QListWidget::itemDoubleClicked, this, [this] { openCurrentFile(); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(files);
    resize(240, 320);
}

void filez::showList() {
    readFolder();
    bringToFront(*this);
}

void filez::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    emit visibilityChanged(true);
}

void filez::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    emit visibilityChanged(false);
}

bool filez::eventFilter(QObject* watched, QEvent* event) {
    if (watched == files && event->type() == QEvent::KeyPress) {
        return files_KeyDown(static_cast<QKeyEvent*>(event)->key());
    }
    return QWidget::eventFilter(watched, event);
}

bool filez::files_KeyDown(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            openCurrentFile();
            return true;
        case Qt::Key_Delete:
            delete_inviso_Click();
            return true;
        case Qt::Key_Escape:
            hide();
            return true;
        default:
            return false;
    }
}

void filez::readFolder() {
    files->clear();
    const QDir folder(pathString(workspace_.applicationFolder().project()));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
    for (const QString& name : names) {
        if (!isSaveLeftover(pathBytes(name))) files->addItem(name);
    }
    files->setCurrentRow(0);
}

void filez::forget(const std::string& path) {
    for (int row = files->count() - 1; row >= 0; --row) {
        if (pathOfItem(files->item(row)) == path) delete files->takeItem(row);
    }
}

std::string filez::currentPath() const {
    return pathOfItem(files->currentItem());
}

std::string filez::pathOfItem(const QListWidgetItem* item) const {
    return workspace_.applicationFolder().project(item == nullptr ? std::string() : pathBytes(item->text()));
}

void filez::openCurrentFile() {
    const std::string path = currentPath();
    const std::string text = readFile(path);
    workspace_.values().nextDocumentTitle = path;
    workspace_.newfile(text);
}

void filez::openquik_Click() {
    trapped(workspace_, "openquik_Click", [this] { openCurrentFile(); });
}

void filez::delete_inviso_Click() {
    try {
        // With no entry the path is the folder's own, which is no file to delete.
        if (files->currentItem() != nullptr) removeFile(currentPath());
    } catch (const Failure&) {
        // Deleting ends without a word, whatever stood in its way.
        return;
    }
}

}  // namespace kav

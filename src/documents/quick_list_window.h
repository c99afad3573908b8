// SPDX-License-Identifier: GPL-3.0-or-later
// The files of the projects folder, ready to open.
#pragma once

#include <string>

#include <QWidget>

class QListWidget;
class QListWidgetItem;
class QMenu;

namespace kav {

class Workspace;

/// "QuickList": a file opens with a double click or Enter and is deleted with Delete, without a question.
/// The list is read anew whenever the window is shown; a file deleted meanwhile keeps its name in it.
class filez : public QWidget {
    Q_OBJECT

  public:
    /// `owner` is the main window, above which the list stays; `QuikFileMenu` is the list's context menu.
    filez(Workspace& workspace, QMenu& QuikFileMenu, QWidget* owner);

    /// Shows the window with the list as it is on disk, and brings it to the front.
    void showList();

    /// Takes the file's entry from the list: the program itself has removed the file.
    void forget(const std::string& path);

    /// The context menu's commands.
    void openquik_Click();
    void delete_inviso_Click();

  signals:
    /// The window is shown or hidden now, whoever did it.
    void visibilityChanged(bool visible);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool files_KeyDown(int key);
    void readFolder();
    [[nodiscard]] std::string pathOfItem(const QListWidgetItem* item) const;
    void openCurrentFile();
    /// Path of the current entry; the folder's own path when there is none.
    [[nodiscard]] std::string currentPath() const;

    Workspace& workspace_;
    QListWidget* files;
};

}  // namespace kav

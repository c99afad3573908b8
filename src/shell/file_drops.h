// SPDX-License-Identifier: GPL-3.0-or-later
// Files dropped on a window.
#pragma once

#include <functional>
#include <string>

#include <QObject>
#include <QStringList>

class QDropEvent;
class QWidget;

namespace kav {

/// Takes the files that are dropped on a window, anywhere in it, and has them opened one after the other. It
/// takes none while a dialog waits for its answer, and leaves everything that is no file to others.
class FileDrops : public QObject {
  public:
    /// `open` is called with each file's path.
    FileDrops(QWidget& window, std::function<void(const std::string& path)> open);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool takes(QDropEvent& event) const;
    void openLater(const QStringList& paths);

    QWidget& window_;
    std::function<void(const std::string& path)> open_;
};

}  // namespace kav

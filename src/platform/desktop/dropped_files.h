// SPDX-License-Identifier: GPL-3.0-or-later
// Which files a drag carries.
#pragma once

#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace kav {

/// The paths of the files, in their order; none for a drag of text or of addresses elsewhere.
inline QStringList droppedFiles(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) paths << url.toLocalFile();
    }
    return paths;
}

}  // namespace kav

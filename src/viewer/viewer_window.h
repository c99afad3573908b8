// SPDX-License-Identifier: GPL-3.0-or-later
// The window for a file: the help's for a help file, the listing's for any other.
#pragma once

#include <memory>

#include <QString>
#include <QWidget>

namespace kav::viewer {

/// The window that shows the file. Throws a Failure when the file cannot be read.
[[nodiscard]] std::unique_ptr<QWidget> windowFor(const QString& path);

/// What a user is told about a file that cannot be shown, and what helps. The reason is a Failure's, which
/// names the file.
[[nodiscard]] QString cannotShow(const QString& path, const QString& reason);

}  // namespace kav::viewer

// SPDX-License-Identifier: GPL-3.0-or-later
// Between the program's bytes and the toolkit's strings.
#pragma once

#include <string>

#include <QFile>
#include <QString>

namespace kav {

/// Text for showing: UTF-8, bytes that are none shown as replacement characters.
inline QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

/// Text that the user typed, as UTF-8.
inline std::string typed(const QString& text) {
    return text.toStdString();
}

/// A path as the file system names it.
inline std::string pathBytes(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

/// A path as the toolkit takes it.
inline QString pathString(const std::string& path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

}  // namespace kav

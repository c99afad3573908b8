// SPDX-License-Identifier: GPL-3.0-or-later
// How a text's bytes travel on the desktop's clipboard and in drag and drop.
#include "platform/desktop/clipboard_text.h"

#include "platform/desktop/text_conversion.h"

#include <memory>

#include <QMimeData>

namespace kav {

namespace {

constexpr const char* kOwnFormat = "application/x-kav-text";

}  // namespace

QMimeData* mimeDataOf(const std::string& text) {
    QString desktopText = shown(text);
#ifndef _WIN32
    desktopText.replace("\r\n", "\n");
#endif
    auto data = std::make_unique<QMimeData>();
    data->setText(desktopText);
    data->setData(kOwnFormat, QByteArray(text.data(), static_cast<qsizetype>(text.size())));
    return data.release();
}

std::string textOf(const QMimeData& data) {
    if (data.hasFormat(kOwnFormat)) return data.data(kOwnFormat).toStdString();
    QString text = data.text();
    text.replace("\r\n", "\n").replace('\r', '\n').replace("\n", "\r\n");
    return typed(text);
}

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
// The small services that the toolkit and the standard library give alike on every system.
#include "platform/desktop/desktop_services.h"

#include "platform/desktop/clipboard_text.h"

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QMimeData>

namespace kav {

void DesktopClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopClipboard::setText(const std::string& text) {
    QGuiApplication::clipboard()->setMimeData(mimeDataOf(text));
}

std::string DesktopClipboard::text() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data == nullptr ? std::string() : textOf(*data);
}

LocalTime SystemClock::now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace kav

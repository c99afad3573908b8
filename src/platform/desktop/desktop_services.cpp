// SPDX-License-Identifier: GPL-3.0-or-later
// The small services that the toolkit and the standard library give alike on every system.
#include "platform/desktop/desktop_services.h"

#include "platform/desktop/text_conversion.h"

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>

namespace kav {

void DesktopClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopClipboard::setText(const std::string& text) {
    QString desktopText = shown(text);
#ifndef _WIN32
    desktopText.replace("\r\n", "\n");
#endif
    QGuiApplication::clipboard()->setText(desktopText);
}

std::string DesktopClipboard::text() {
    QString text = QGuiApplication::clipboard()->text();
    text.replace("\r\n", "\n").replace('\r', '\n').replace("\n", "\r\n");
    return typed(text);
}

LocalTime SystemClock::now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace kav

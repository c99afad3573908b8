// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon.
#include "shell/application_icon.h"

#include <QPainter>
#include <QPixmap>

namespace kav {

QImage applicationPicture(int size) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    // Drawn on a grid of 16 by 16, so that its edges are sharp at every multiple.
    painter.scale(size / 16.0, size / 16.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(44, 52, 64));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(2, 0, 12, 16), 2, 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(4, 2, 8, 5), QColor(158, 184, 132));
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QColor key = row == 0 && column == 2 ? QColor(217, 119, 61) : QColor(196, 203, 212);
            painter.fillRect(QRectF(4 + 3 * column, 8.5 + 2.25 * row, 2, 1.5), key);
        }
    }
    return picture;
}

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : kIconSizes)
        icon.addPixmap(QPixmap::fromImage(applicationPicture(size)));
    return icon;
}

}  // namespace kav

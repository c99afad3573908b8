// SPDX-License-Identifier: GPL-3.0-or-later
// The toolbar strip's picture.
#include "shell/toolbar_picture.h"

#include "shell/toolbar_regions.h"

#include <array>
#include <string_view>

#include <QPainter>

namespace kav {

namespace {

// Every image is drawn on a grid of its own, 16 high and as wide as it needs; (0, 0) is its left top.
constexpr QColor kInk(44, 52, 64);
constexpr QColor kPaper(255, 255, 255);
constexpr QColor kGround(238, 240, 243);
constexpr QColor kBlue(52, 110, 184);
constexpr QColor kGreen(62, 140, 84);
constexpr QColor kOrange(217, 119, 61);
constexpr QColor kYellow(240, 196, 84);
constexpr QColor kRed(196, 60, 52);

QPen line(const QColor& colour, double width = 1) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawPage(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kPaper);
    painter.drawPolygon(QPolygonF({{2.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {2.5, 14.5}}));
    painter.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
}

void drawLetterPage(QPainter& painter, const QString& letter, const QColor& colour) {
    drawPage(painter);
    QFont font("DejaVu Sans");
    font.setPixelSize(9);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRectF(2.5, 4.5, 10, 10), Qt::AlignCenter, letter);
}

void drawNewKav(QPainter& painter) {
    drawLetterPage(painter, "K", kOrange);
}

void drawNewIon(QPainter& painter) {
    drawLetterPage(painter, "I", kBlue);
}

void drawNewMirage(QPainter& painter) {
    drawLetterPage(painter, "M", kGreen);
}

void drawOpen(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kYellow);
    painter.drawPolygon(
        QPolygonF({{1.5, 13.5}, {1.5, 3.5}, {6.5, 3.5}, {8, 5.5}, {14.5, 5.5}, {14.5, 7.5}, {4.5, 7.5}}));
    painter.drawPolygon(QPolygonF({{1.5, 13.5}, {4.5, 7.5}, {17.5, 7.5}, {14.5, 13.5}}));
}

void drawDisk(QPainter& painter, double left, double width, const QColor& colour) {
    painter.setPen(line(kInk));
    painter.setBrush(colour);
    painter.drawRect(QRectF(left + 0.5, 2.5, width, 12));
    painter.fillRect(QRectF(left + width * 0.25, 3, width * 0.55, 4), kPaper);
    painter.fillRect(QRectF(left + width * 0.2 + 0.5, 9, width * 0.6, 5), kPaper);
}

void drawSave(QPainter& painter) {
    drawDisk(painter, 3, 12, kBlue);
}

void drawSaveToProjects(QPainter& painter) {
    drawDisk(painter, 1, 8, kYellow);
}

void drawCompile(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kGround.darker(120));
    painter.drawRoundedRect(QRectF(2.5, 1.5, 9, 13), 1.5, 1.5);
    painter.fillRect(QRectF(4, 3, 6, 3), kGreen.lighter(150));
    for (const double x : {4.0, 7.5}) {
        for (const double y : {8.0, 11.0})
            painter.fillRect(QRectF(x, y, 2.5, 1.8), kInk);
    }
    painter.setBrush(kGreen);
    painter.drawPolygon(QPolygonF({{12.5, 6.5}, {18.5, 10.5}, {12.5, 14.5}}));
}

void drawCut(QPainter& painter) {
    painter.setPen(line(kInk, 1.6));
    painter.drawLine(QPointF(6, 1.5), QPointF(11.5, 10));
    painter.drawLine(QPointF(13, 1.5), QPointF(7.5, 10));
    painter.setPen(line(kRed, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(6, 12), 2.2, 2.2);
    painter.drawEllipse(QPointF(13, 12), 2.2, 2.2);
}

void drawSheet(QPainter& painter, QPointF corner) {
    painter.setPen(line(kInk));
    painter.setBrush(kPaper);
    painter.drawRect(QRectF(corner, QSizeF(7, 9)));
    painter.setPen(line(kBlue));
    for (int row = 1; row <= 3; ++row) {
        painter.drawLine(corner + QPointF(1.5, 2 * row + 0.5), corner + QPointF(5.5, 2 * row + 0.5));
    }
}

void drawCopy(QPainter& painter) {
    drawSheet(painter, {2.5, 1.5});
    drawSheet(painter, {6.5, 5.5});
}

void drawPaste(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kYellow.darker(115));
    painter.drawRect(QRectF(1.5, 2.5, 7, 12));
    painter.fillRect(QRectF(3, 5, 4, 8), kPaper);
    painter.fillRect(QRectF(3, 1, 4, 3), kInk);
}

void drawDelete(QPainter& painter) {
    painter.setPen(line(kRed, 2.4));
    painter.drawLine(QPointF(3.5, 3.5), QPointF(12.5, 12.5));
    painter.drawLine(QPointF(12.5, 3.5), QPointF(3.5, 12.5));
}

void drawFind(QPainter& painter) {
    painter.setPen(line(kInk, 2.6));
    painter.drawLine(QPointF(12, 9.5), QPointF(17, 14));
    painter.setPen(line(kInk, 1.6));
    painter.setBrush(kBlue.lighter(190));
    painter.drawEllipse(QPointF(8.5, 6.5), 4.8, 4.8);
}

void drawSettings(QPainter& painter) {
    const std::array<double, 3> knobs{12, 6, 10};
    for (std::size_t row = 0; row < knobs.size(); ++row) {
        const double y = 3.5 + 4.5 * static_cast<double>(row);
        painter.setPen(line(kInk, 1.2));
        painter.drawLine(QPointF(2, y), QPointF(17, y));
        painter.setBrush(kOrange);
        painter.drawEllipse(QPointF(knobs[row], y), 1.9, 1.9);
    }
}

void drawAbout(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBlue);
    painter.drawEllipse(QPointF(10.5, 8), 6.8, 6.8);
    painter.setBrush(kPaper);
    painter.drawEllipse(QPointF(10.5, 4.5), 1.2, 1.2);
    painter.drawRoundedRect(QRectF(9.5, 6.7, 2, 5.8), 0.6, 0.6);
}

void drawWebPage(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kGreen.lighter(170));
    painter.drawEllipse(QPointF(7.5, 8), 6.5, 6.5);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(7.5, 8), 2.8, 6.5);
    painter.drawLine(QPointF(1, 8), QPointF(14, 8));
    painter.drawLine(QPointF(2.2, 4.5), QPointF(12.8, 4.5));
    painter.drawLine(QPointF(2.2, 11.5), QPointF(12.8, 11.5));
}

void drawMail(QPainter& painter) {
    painter.setPen(line(kInk));
    painter.setBrush(kPaper);
    painter.drawRect(QRectF(2.5, 3.5, 15, 10));
    painter.drawPolyline(QPolygonF({{2.5, 3.5}, {10, 9.5}, {17.5, 3.5}}));
}

using Drawing = void (*)(QPainter&);

struct Image {
    std::string_view command;
    double width;
    Drawing draw;
};

constexpr std::array<Image, 17> kImages{{
    {"newer", 15, drawNewKav},
    {"newion", 15, drawNewIon},
    {"newasm", 15, drawPage},
    {"nmf", 15, drawNewMirage},
    {"load", 19, drawOpen},
    {"svenotas", 19, drawSave},
    {"stpf", 10, drawSaveToProjects},
    {"comp", 20, drawCompile},
    {"cut", 19, drawCut},
    {"cpy", 16, drawCopy},
    {"pste", 9, drawPaste},
    {"dlll", 16, drawDelete},
    {"fnd", 19, drawFind},
    {"set", 19, drawSettings},
    {"abt", 21, drawAbout},
    {"mwp", 15, drawWebPage},
    {"emlme", 20, drawMail},
}};

}  // namespace

void drawToolbarPicture(QPainter& painter) {
    constexpr double kImageHeight = 16;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(0, 0, kToolbarStripWidth, kToolbarStripHeight), kGround);
    for (std::size_t i = 0; i < kImages.size(); ++i) {
        const ToolbarRegion& region = toolbarRegions()[i];
        painter.save();
        // Whole pixels keep straight edges sharp.
        const int margin = static_cast<int>(region.right - region.left - kImages[i].width) / 2;
        painter.translate(region.left + margin, (kToolbarStripHeight - kImageHeight) / 2);
        kImages[i].draw(painter);
        painter.restore();
    }
}

}  // namespace kav

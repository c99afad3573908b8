// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the redraw of a full 15 by 15 grid of gradient discs beside the same rings drawn as the toolkit's
// own ellipses, one call a ring.
#include "platform/desktop/desktop_services.h"
#include "stopwatch.h"
#include "table.h"
#include "tools/disc.h"
#include "tools/drawing_surface.h"

#include <QGuiApplication>
#include <QPainter>

namespace {

constexpr int kCells = 15;
constexpr int kSide = 800;

template <typename Draw>
double secondsOf(Draw draw) {
    return kav::bench::secondsOf([&] {
        for (int y = 0; y < kCells; ++y) {
            for (int x = 0; x < kCells; ++x)
                draw(QPointF(x + 1, y + 1));
        }
    });
}

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    kav::SeededRandomNumbers random;
    kav::DrawingSurface surface(QPointF(16, 16));
    surface.fit(QSize(kSide, kSide), 1.0);
    const double ours = secondsOf([&](QPointF centre) { surface.drawGradientDisc(centre, random); });

    QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    const double pixelsPerCentimetre = kSide / 16.0;
    const double peers = secondsOf([&](QPointF centre) {
        QPainter painter(&image);
        for (int ring = 0; ring < kav::kDiscRings; ++ring) {
            const double radius = kav::ringRadius(ring) * pixelsPerCentimetre;
            painter.setPen(QColor::fromRgbF(0.5F, 0.5F, static_cast<float>(random.next())));
            painter.drawEllipse(centre * pixelsPerCentimetre, radius, radius);
        }
    });
    kav::bench::printRow("225 gradient discs", ours, peers, "the toolkit's ellipses, one a ring");
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that painted cells are drawn on.
#include "tools/drawing_surface.h"

#include "platform/desktop/twips.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

namespace kav {

namespace {

/// Half the width of an outline, which is one logical pixel wide, in centimetres.
constexpr double kHalfLine = 0.5 / kPixelsPerCentimetre;

constexpr QRgb kBackground = 0;

QRgb opaque(Colour colour) {
    return qRgb(redOf(colour), greenOf(colour), blueOf(colour));
}

/// The number of the ring with the radius, or of the nearest ring.
int ringOf(double radius) {
    const int ring = static_cast<int>(std::lround((0.5 - radius) * 1000));
    return std::clamp(ring, 1, kDiscRings);
}

QImage transparentImage(QSize size, double devicePixelRatio) {
    const QSizeF scaled = QSizeF(size) * devicePixelRatio;
    const QSize whole(static_cast<int>(std::ceil(scaled.width())),
                      static_cast<int>(std::ceil(scaled.height())));
    QImage image(whole, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    return image;
}

}  // namespace

DrawingSurface::DrawingSurface(QPointF least)
    : least_((least * kPixelsPerCentimetre).toPoint().x(), (least * kPixelsPerCentimetre).toPoint().y()),
      image_(transparentImage(least_, 1)) {}

void DrawingSurface::fit(QSize size, double devicePixelRatio) {
    const QSize needed = size.expandedTo(least_);
    const QSize present = image_.deviceIndependentSize().toSize();
    const bool sameResolution = image_.devicePixelRatio() == devicePixelRatio;
    if (sameResolution && present.expandedTo(needed) == present) return;
    QImage grown = transparentImage(needed.expandedTo(present), devicePixelRatio);
    QPainter(&grown).drawImage(0, 0, image_);
    image_ = std::move(grown);
}

void DrawingSurface::erase() {
    image_.fill(Qt::transparent);
}

void DrawingSurface::drawGradientDisc(QPointF centre, RandomNumbers& random) {
    const double forBase = random.next();
    const double forStep = random.next();
    const DiscGradient gradient = discGradient(forBase, forStep);
    drawRings(centre, ringRadius(1), ringRadius(kDiscRings),
              [&gradient](double radius) { return opaque(gradient.colourOf(ringOf(radius))); });
}

void DrawingSurface::drawErasingDisc(QPointF centre) {
    drawRings(centre, ringRadius(1), ringRadius(kDiscRings), [](double) { return kBackground; });
}

void DrawingSurface::drawFlatDisc(QPointF centre) {
    drawRings(centre, kFlatRadius, kFlatRadius, [](double) { return opaque(kFlatColour); });
}

// Rings lie many times closer together than pixels, so a pixel is coloured once rather than by every ring
// that crosses it: with the one drawn last, the innermost whose outline reaches it.
template <typename ColourAt>
void DrawingSurface::drawRings(QPointF centre, double widest, double narrowest, ColourAt colourAt) {
    const double scale = kPixelsPerCentimetre * image_.devicePixelRatio();
    const QPointF middle = centre * scale;
    const double reach = (widest + kHalfLine) * scale;
    const QRect square = QRectF(middle.x() - reach, middle.y() - reach, 2 * reach, 2 * reach)
                             .toAlignedRect()
                             .intersected(image_.rect());
    for (int y = square.top(); y <= square.bottom(); ++y) {
        auto* const pixels = reinterpret_cast<QRgb*>(image_.scanLine(y));
        const double down = y + 0.5 - middle.y();
        for (int x = square.left(); x <= square.right(); ++x) {
            const double across = x + 0.5 - middle.x();
            const double distance = std::sqrt(across * across + down * down) / scale;
            if (distance > widest + kHalfLine || distance < narrowest - kHalfLine) continue;
            pixels[x] = colourAt(std::max(distance - kHalfLine, narrowest));
        }
    }
}

}  // namespace kav

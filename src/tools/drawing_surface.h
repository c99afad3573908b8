// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that painted cells are drawn on.
#pragma once

#include "platform/random_numbers.h"
#include "tools/disc.h"

#include <QImage>
#include <QPointF>

namespace kav {

/// An image that keeps what is drawn on it, transparent where nothing is. Places are centimetres from its
/// top left corner.
class DrawingSurface {
  public:
    /// The surface reaches at least as far as `least`, so that cells beyond a small window's edge are kept.
    explicit DrawingSurface(QPointF least);

    /// Grows to the size in logical pixels and takes on the screen's resolution. The picture stays.
    void fit(QSize size, double devicePixelRatio);

    void erase();

    /// The rings of a gradient disc, in colours from the next two random numbers.
    void drawGradientDisc(QPointF centre, RandomNumbers& random);
    /// The same rings in the background's colour. The spot within the narrowest ring stays as it is.
    void drawErasingDisc(QPointF centre);
    /// The single ring of the flat style.
    void drawFlatDisc(QPointF centre);

    [[nodiscard]] const QImage& image() const { return image_; }

  private:
    /// Draws rings from the widest radius inwards; `colourAt` gives the colour for the radius of a ring.
    template <typename ColourAt>
    void drawRings(QPointF centre, double widest, double narrowest, ColourAt colourAt);

    QSize least_;
    QImage image_;
};

}  // namespace kav

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/drawing_surface.h"

#include "platform/desktop/twips.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

#include <QColor>

namespace kav::test {

namespace {

/// The colour of the pixel that holds a point in centimetres.
QColor colourAt(const DrawingSurface& surface, QPointF place) {
    const QImage& image = surface.image();
    const QPointF pixel = place * kPixelsPerCentimetre * image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
}

const QColor kFlatGreen(147, 226, 11);

}  // namespace

TEST(DrawingSurface, KeepsItsPictureWhenItGrows) {
    DrawingSurface surface({3, 3});
    surface.drawFlatDisc({1, 1});
    ASSERT_EQ(colourAt(surface, {1.5, 1.0}), kFlatGreen);
    surface.fit({400, 300}, 1);
    EXPECT_EQ(surface.image().size(), QSize(400, 300));
    EXPECT_EQ(colourAt(surface, {1.5, 1.0}), kFlatGreen);
    surface.fit({10, 10}, 1);
    EXPECT_EQ(surface.image().size(), QSize(400, 300)) << "it never shrinks";
}

TEST(DrawingSurface, KeepsItsPictureOnAScreenOfAnotherResolution) {
    DrawingSurface surface({3, 3});
    surface.drawFlatDisc({1, 1});
    surface.fit({100, 100}, 2);
    EXPECT_EQ(surface.image().devicePixelRatio(), 2);
    EXPECT_EQ(colourAt(surface, {1.5, 1.0}), kFlatGreen);
    surface.erase();
    surface.drawFlatDisc({2, 2});
    EXPECT_EQ(colourAt(surface, {2.5, 2.0}), kFlatGreen);
    EXPECT_EQ(colourAt(surface, {1.5, 1.0}).alpha(), 0);
}

TEST(DrawingSurface, DrawsRingsFromTheEdgeToTheNarrowest) {
    DrawingSurface surface({3, 3});
    surface.fit({200, 200}, 2);
    ScriptedRandomNumbers random;
    random.numbers = {0.0, 0.0};
    surface.drawGradientDisc({2, 2}, random);
    EXPECT_EQ(colourAt(surface, {2.48, 2.0}).alpha(), 255);
    EXPECT_EQ(colourAt(surface, {2.53, 2.0}).alpha(), 0);
    // Ring 450 has the colour 4500: red 148, green 17.
    EXPECT_EQ(colourAt(surface, {2.05, 2.0}), QColor(148, 17, 0));
    EXPECT_EQ(colourAt(surface, {2.01, 2.0}).alpha(), 0) << "the spot within the narrowest ring";
}

TEST(DrawingSurface, TakesTheBaseFromTheFirstRandomNumberAndTheStepFromTheSecond) {
    DrawingSurface surface({3, 3});
    ScriptedRandomNumbers random;
    random.numbers = {0.5, 0.0};
    surface.drawGradientDisc({2, 2}, random);
    // 389449 + 4500 is red 221, green 2, blue 6.
    EXPECT_EQ(colourAt(surface, {2.06, 2.0}), QColor(221, 2, 6));
}

TEST(DrawingSurface, DrawsNothingBeyondItsEdges) {
    DrawingSurface surface({2, 2});
    ScriptedRandomNumbers random;
    for (const QPointF centre : {QPointF(0, 0), QPointF(2, 2), QPointF(-5, 1), QPointF(1, 50)}) {
        random.numbers = {0.0, 0.0};
        surface.drawGradientDisc(centre, random);
        surface.drawErasingDisc(centre);
    }
    EXPECT_EQ(colourAt(surface, {0.4, 0.0}).alpha(), 0);
}

}  // namespace kav::test

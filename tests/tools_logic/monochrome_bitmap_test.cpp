// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/monochrome_bitmap.h"

#include "runtime/failure.h"
#include "runtime/lines.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kav {

namespace {

const std::string kLineStart = "\t.db %";

/// The sprite's text from its eight columns of digits.
std::string spriteText(const std::vector<std::string>& columns) {
    std::string text;
    for (const std::string& column : columns)
        text += kLineStart + column + "\r\n";
    return text + kLineStart;
}

template <typename Bitmap>
void expectOutOfRange(Bitmap& bitmap, Cell cell) {
    const Bitmap before = bitmap;
    try {
        bitmap.setCell(cell, true);
        ADD_FAILURE() << "painted beyond the grid";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), 9);
        EXPECT_EQ(failure.description(), "Subscript out of range");
    }
    EXPECT_EQ(bitmap, before);
    EXPECT_THROW((void)bitmap.cell(cell), Failure);
}

}  // namespace

TEST(SpriteText, OfAnEmptySpriteIsEightLinesOfZerosAndAFragment) {
    const std::string text = toDbText(SpriteBitmap());
    EXPECT_EQ(text, spriteText(std::vector<std::string>(8, "00000000")));
    EXPECT_EQ(text.size(), 134U);
}

TEST(SpriteText, HasALineForEachColumnReadDownwards) {
    SpriteBitmap sprite;
    sprite.setCell({1, 1}, true);
    sprite.setCell({3, 2}, true);
    EXPECT_EQ(toDbText(sprite), spriteText({"10000000", "00000000", "01000000", "00000000", "00000000",
                                            "00000000", "00000000", "00000000"}));
}

TEST(SpriteText, EndsWithTheRightmostColumn) {
    SpriteBitmap sprite;
    sprite.setCell({8, 1}, true);
    std::vector<std::string> columns(8, "00000000");
    columns[7] = "10000000";
    EXPECT_EQ(toDbText(sprite), spriteText(columns));
}

TEST(Sprite, KeepsItsCellsUntilCleared) {
    SpriteBitmap sprite;
    sprite.setCell({2, 7}, true);
    EXPECT_EQ(sprite.cell({2, 7}), 1);
    EXPECT_EQ(sprite.cell({7, 2}), 0);
    sprite.setCell({2, 7}, false);
    EXPECT_EQ(sprite.cell({2, 7}), 0);
    sprite.setCell({8, 8}, true);
    sprite.clear();
    EXPECT_EQ(sprite, SpriteBitmap());
}

TEST(Bitmaps, RefuseCellsBeyondTheGrid) {
    SpriteBitmap sprite;
    for (const Cell cell : {Cell{0, 1}, Cell{1, 0}, Cell{9, 1}, Cell{1, 9}, Cell{-1, 3}}) {
        expectOutOfRange(sprite, cell);
    }
    ButtonBitmap button;
    for (const Cell cell : {Cell{0, 1}, Cell{1, 0}, Cell{16, 1}, Cell{1, 16}, Cell{16, 17}}) {
        expectOutOfRange(button, cell);
    }
}

TEST(SpriteCellAt, IsTheSquareRightAndBelowOfThePoint) {
    EXPECT_EQ(spriteCellAt(1.0, 1.0), (Cell{1, 1}));
    EXPECT_EQ(spriteCellAt(1.99, 2.5), (Cell{1, 2}));
    EXPECT_EQ(spriteCellAt(8.99, 1.0), (Cell{8, 1}));
    EXPECT_EQ(spriteCellAt(3.0, 8.99), (Cell{3, 8}));
}

TEST(SpriteCellAt, IsNothingBesideTheGrid) {
    EXPECT_FALSE(spriteCellAt(0.9, 4.0).has_value());
    EXPECT_FALSE(spriteCellAt(9.0, 4.0).has_value());
    EXPECT_FALSE(spriteCellAt(4.0, 0.9).has_value());
    EXPECT_FALSE(spriteCellAt(4.0, 9.0).has_value());
    EXPECT_FALSE(spriteCellAt(-1e300, 4.0).has_value());
}

TEST(SpriteCellAt, EndsAtTheSinglePrecisionBound) {
    EXPECT_TRUE(spriteCellAt(static_cast<double>(8.99999F), 4.0).has_value());
    EXPECT_FALSE(spriteCellAt(8.999995, 4.0).has_value());
}

TEST(ButtonText, OfAnEmptyButtonIsFifteenLinesOfTwoBytes) {
    const std::string text = toDbText(ButtonBitmap());
    EXPECT_EQ(text.size(), 388U);
    const auto lines = linesOf(text);
    ASSERT_EQ(lines.size(), 15U);
    for (const std::string_view line : lines)
        EXPECT_EQ(line, kLineStart + "00000000,%00000000");
    EXPECT_TRUE(text.ends_with('0'));
}

TEST(ButtonText, KeepsTheSixteenthBitClear) {
    ButtonBitmap button;
    button.setCell({15, 1}, true);
    const std::string text = toDbText(button);
    EXPECT_EQ(linesOf(text).at(0), kLineStart + "00000000,%00000010");
}

TEST(ButtonText, HasALineForEachRow) {
    ButtonBitmap button;
    button.setCell({1, 15}, true);
    button.setCell({8, 3}, true);
    button.setCell({9, 3}, true);
    const std::string text = toDbText(button);
    EXPECT_EQ(linesOf(text).at(14), kLineStart + "10000000,%00000000");
    EXPECT_EQ(linesOf(text).at(2), kLineStart + "00000001,%10000000");
}

TEST(ButtonCellAt, BeginsTwoCentimetresLower) {
    EXPECT_EQ(buttonCellAt(1.0, 3.0), (Cell{1, 1}));
    EXPECT_EQ(buttonCellAt(15.99, 17.99), (Cell{15, 15}));
    EXPECT_FALSE(buttonCellAt(0.99, 5.0).has_value());
    EXPECT_FALSE(buttonCellAt(5.0, 2.99).has_value());
    EXPECT_FALSE(buttonCellAt(17.0, 5.0).has_value());
    EXPECT_FALSE(buttonCellAt(5.0, 20.0).has_value());
}

TEST(ButtonCellAt, ReachesBeyondTheGridWhereTheButtonRefuses) {
    EXPECT_EQ(buttonCellAt(16.5, 5.0), (Cell{16, 3}));
    EXPECT_EQ(buttonCellAt(5.0, 19.5), (Cell{5, 17}));
    ButtonBitmap button;
    expectOutOfRange(button, *buttonCellAt(16.5, 5.0));
    expectOutOfRange(button, *buttonCellAt(5.0, 18.0));
}

}  // namespace kav

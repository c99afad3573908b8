// SPDX-License-Identifier: GPL-3.0-or-later
// The ".db %" lines of sprites and buttons, and the cells under a point.
#include "tools/monochrome_bitmap.h"

#include "runtime/failure.h"
#include "runtime/lines.h"

#include <string_view>

namespace kav {

namespace {

constexpr std::string_view kLineStart = "\t.db %";

// The upper bounds are single-precision numbers, a little above the decimals they are written as.
constexpr double kSpriteEnd = 8.99999F;
constexpr double kButtonRightEnd = 16.99999F;
constexpr double kButtonBottomEnd = 19.99999F;

template <typename Bitmap>
char digitOf(const Bitmap& bitmap, int x, int y) {
    return bitmap.cell({x, y}) == 0 ? '0' : '1';
}

}  // namespace

void checkCell(Cell cell, int columns, int rows) {
    const bool inside = cell.x >= 1 && cell.x <= columns && cell.y >= 1 && cell.y <= rows;
    if (!inside) throw failureOf(kSubscriptOutOfRange);
}

std::string toDbText(const SpriteBitmap& sprite) {
    std::string text(kLineStart);
    for (int x = 1; x <= SpriteBitmap::kColumns; ++x) {
        for (int y = 1; y <= SpriteBitmap::kRows; ++y)
            text += digitOf(sprite, x, y);
        text.append(kCrLf).append(kLineStart);
    }
    return text;
}

std::string toDbText(const ButtonBitmap& button) {
    constexpr int kBitsOfFirstByte = 8;
    std::string text;
    for (int y = 1; y <= ButtonBitmap::kRows; ++y) {
        if (y > 1) text += kCrLf;
        text += kLineStart;
        for (int x = 1; x <= ButtonBitmap::kColumns; ++x) {
            text += digitOf(button, x, y);
            if (x == kBitsOfFirstByte) text += ",%";
        }
        text += '0';
    }
    return text;
}

std::optional<Cell> spriteCellAt(double x, double y) {
    const bool inside = x >= 1 && x <= kSpriteEnd && y >= 1 && y <= kSpriteEnd;
    if (!inside) return std::nullopt;
    return Cell{static_cast<int>(x), static_cast<int>(y)};
}

std::optional<Cell> buttonCellAt(double x, double y) {
    const bool inside = x >= 1 && x <= kButtonRightEnd && y >= 1 + kButtonGridTop && y <= kButtonBottomEnd;
    if (!inside) return std::nullopt;
    return Cell{static_cast<int>(x), static_cast<int>(y) - kButtonGridTop};
}

}  // namespace kav

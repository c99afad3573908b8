// SPDX-License-Identifier: GPL-3.0-or-later
// Small pictures of set and clear cells, and their ".db %" lines: the sprite and the MirageOS button.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace kav {

/// The address of a cell: column from 1 (left), row from 1 (top).
struct Cell {
    int x = 0;
    int y = 0;
    bool operator==(const Cell&) const = default;
};

/// Raises failure 9 unless the cell lies within 1..columns and 1..rows.
void checkCell(Cell cell, int columns, int rows);

/// A grid of cells that hold 0 (clear) or 1 (set); all are clear at first. Reading or writing a cell beyond
/// the grid raises failure 9 and changes nothing.
template <int Columns, int Rows>
class MonochromeBitmap {
  public:
    static constexpr int kColumns = Columns;
    static constexpr int kRows = Rows;

    [[nodiscard]] int cell(Cell at) const { return cells_[indexOf(at)]; }
    void setCell(Cell at, bool value) { cells_[indexOf(at)] = value ? 1 : 0; }
    void clear() { cells_.fill(0); }

    bool operator==(const MonochromeBitmap&) const = default;

  private:
    static std::size_t indexOf(Cell at) {
        checkCell(at, Columns, Rows);
        const int index = (at.y - 1) * Columns + (at.x - 1);
        return static_cast<std::size_t>(index);
    }

    std::array<std::int8_t, static_cast<std::size_t>(Columns) * Rows> cells_{};
};

using SpriteBitmap = MonochromeBitmap<8, 8>;
using ButtonBitmap = MonochromeBitmap<15, 15>;

/// The sprite's data lines: one line for each column from the left, its digits from top to bottom, and a
/// ninth line without digits or line end. 134 characters.
[[nodiscard]] std::string toDbText(const SpriteBitmap& sprite);

/// The button's data lines: one line of two bytes for each row from the top, the last bit always clear;
/// CR LF between the lines and none behind the last. 388 characters.
[[nodiscard]] std::string toDbText(const ButtonBitmap& button);

/// The cell that a press at the point paints, or nothing beside the grid. Both coordinates are centimetres
/// from the drawing area's top left corner. The cell is the square right and below of its disc's centre.
[[nodiscard]] std::optional<Cell> spriteCellAt(double x, double y);

/// As spriteCellAt, for the button, whose grid begins two centimetres lower. The area reaches beyond the
/// grid on the right and below: there the cell is one that ButtonBitmap refuses with failure 9.
[[nodiscard]] std::optional<Cell> buttonCellAt(double x, double y);

/// How far below its row number, in centimetres, the designer draws a button's cell.
inline constexpr int kButtonGridTop = 2;

}  // namespace kav

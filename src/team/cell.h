#pragma once

#include <array>
#include <cstddef>

#include "team/grid_columns.h"

namespace morlek {

/// One cell of the roster grid; row 0 to 24.
struct Cell {
  Column column;
  int row;

  friend bool operator==(const Cell&, const Cell&) = default;
};

/// How many cells the grid has.
inline constexpr std::size_t kCellCount = std::size_t{kSlotCount} * kColumnCount;

/// The place of a cell in a table of all cells, row by row in the order of the arrays' numbers.
[[nodiscard]] constexpr std::size_t IndexOf(Cell cell) {
  return static_cast<std::size_t>(cell.row * kColumnCount + static_cast<int>(cell.column) - 1);
}

/// All cells in that order.
inline constexpr std::array<Cell, kCellCount> kAllCells = [] {
  std::array<Cell, kCellCount> cells{};
  for (int row = 0; row < kSlotCount; ++row) {
    for (int column = 1; column <= kColumnCount; ++column) {
      const Cell cell{static_cast<Column>(column), row};
      cells.at(IndexOf(cell)) = cell;
    }
  }
  return cells;
}();

}  // namespace morlek

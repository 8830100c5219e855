#pragma once

#include <array>
#include <cstddef>
#include <numeric>
#include <span>

#include "team/blocks.h"

namespace morlek {

/// One cell of the roster grid; row 0 to 24, and a column of that row's block.
struct Cell {
  Column column;
  int row;

  friend bool operator==(const Cell&, const Cell&) = default;
};

/// The rows of the grid, 0 to 24.
inline constexpr auto kRowNumbers = [] {
  std::array<int, kSlotCount> numbers{};
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}();

/// Some of these rows, one after another.
using Rows = std::span<const int>;
inline constexpr Rows kAllRows(kRowNumbers);

/// How many cells the grid has.
inline constexpr std::size_t kCellCount = std::size_t{kSlotCount} * kColumnCount;

/// All cells, row by row, within a row in the order of their columns' list.
inline constexpr std::array<Cell, kCellCount> kAllCells = [] {
  std::array<Cell, kCellCount> cells{};
  std::size_t index = 0;
  for (int row = 0; row < kSlotCount; ++row) {
    for (std::size_t kind = 0; kind < kColumnKinds; ++kind) {
      const auto column = static_cast<Column>(kind);
      if (BlockOf(row).PlaceOf(column)) cells.at(index++) = {column, row};
    }
  }
  return cells;
}();

/// All cells in the order of the screen, row by row from left to right.
inline constexpr std::array<Cell, kCellCount> kCellsOnScreen = [] {
  std::array<Cell, kCellCount> cells{};
  std::size_t index = 0;
  for (int row = 0; row < kSlotCount; ++row) {
    for (const BlockColumn& each : BlockOf(row).columns) cells.at(index++) = {each.column, row};
  }
  return cells;
}();

/// The places of cells in kAllCells, by row and column; kCellCount where the grid has no cell.
inline constexpr auto kCellPlaces = [] {
  std::array<std::array<std::size_t, kColumnKinds>, kSlotCount> places{};
  for (auto& row : places) row.fill(kCellCount);
  for (std::size_t place = 0; place < kCellCount; ++place) {
    const Cell cell = kAllCells.at(place);
    places.at(static_cast<std::size_t>(cell.row)).at(static_cast<std::size_t>(cell.column)) = place;
  }
  return places;
}();

/// The place of a cell in kAllCells; kCellCount for a column that its row does not have. Throws
/// std::out_of_range for a row that the grid does not have.
[[nodiscard]] constexpr std::size_t IndexOf(Cell cell) {
  return kCellPlaces.at(static_cast<std::size_t>(cell.row))
      .at(static_cast<std::size_t>(cell.column));
}

}  // namespace morlek

#include "team/roster_grid.h"

#include <utility>

namespace morlek {

const std::string& RosterGrid::Text(Cell cell) const { return texts_.at(IndexOf(cell)); }

void RosterGrid::SetText(Cell cell, std::string text) {
  texts_.at(IndexOf(cell)) = std::move(text);
}

std::string PlayerText(int row) {
  const Block& block = BlockOf(row);
  return std::string(block.player) + " " + std::to_string(row - block.first_row + 1);
}

}  // namespace morlek

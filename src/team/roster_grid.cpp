#include "team/roster_grid.h"

#include <utility>

namespace morlek {

const std::string& RosterGrid::Text(Cell cell) const { return texts_.at(IndexOf(cell)); }

void RosterGrid::SetText(Cell cell, std::string text) {
  texts_.at(IndexOf(cell)) = std::move(text);
}

std::string PlayerText(int row) {
  return IsPitcher(row) ? "pitcher " + std::to_string(row - kBatterCount + 1)
                        : "batter " + std::to_string(row + 1);
}

}  // namespace morlek

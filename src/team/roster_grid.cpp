#include "team/roster_grid.h"

#include <utility>

namespace morlek {

const std::string& RosterGrid::Text(Cell cell) const { return texts_.at(IndexOf(cell)); }

void RosterGrid::SetText(Cell cell, std::string text) {
  texts_.at(IndexOf(cell)) = std::move(text);
}

}  // namespace morlek

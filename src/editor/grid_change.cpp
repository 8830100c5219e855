#include "editor/grid_change.h"

#include <utility>

namespace morlek {

GridChange ChangeBetween(const RosterGrid& before, const RosterGrid& after) {
  GridChange change;
  for (const Cell cell : kAllCells) {
    if (before.Text(cell) != after.Text(cell)) {
      change.push_back({cell, before.Text(cell), after.Text(cell)});
    }
  }
  return change;
}

GridChange Reverse(GridChange change) {
  for (CellChange& part : change) std::swap(part.before, part.after);
  return change;
}

}  // namespace morlek

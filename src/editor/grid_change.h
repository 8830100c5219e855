#pragma once

#include <string>
#include <vector>

#include "team/roster_grid.h"

namespace morlek {

/// What a change did to one cell.
struct CellChange {
  Cell cell;
  std::string before;
  std::string after;
};

/// What a change did to the grid: the cells whose texts differ now, in the order of kAllCells.
using GridChange = std::vector<CellChange>;

/// The change that makes `after` of `before`.
[[nodiscard]] GridChange ChangeBetween(const RosterGrid& before, const RosterGrid& after);

/// The change that takes another one back.
[[nodiscard]] GridChange Reverse(GridChange change);

}  // namespace morlek

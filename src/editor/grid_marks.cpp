#include "editor/grid_marks.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "team/refusal.h"
#include "team/same_text.h"

namespace morlek {

GridMarks::GridMarks(const RosterGrid& grid, const SavePreview& preview, const Baseline& baseline) {
  for (const Cell cell : kAllCells) {
    const std::string& text = grid.Text(cell);
    const std::string& known = baseline.texts().Text(cell);
    const std::string& after = preview.TextAfter(cell);
    const bool is_modified = !IsSameText(cell.column, text, known);
    const bool is_lossy = text == known ? text != after : !IsSameText(cell.column, text, after);
    if (!is_modified && !is_lossy) continue;
    marks_.at(IndexOf(cell)) = {
        is_modified, is_lossy, preview.FateOf(cell),
        after,       known,    is_lossy ? CauseElsewhere(grid, preview, cell) : std::nullopt};
    modified_count_ += is_modified ? 1 : 0;
    lossy_count_ += is_lossy ? 1 : 0;
  }
}

std::optional<Cell> GridMarks::NextLossy(std::optional<Cell> from, bool backwards) const {
  const auto is_lossy = [this](Cell cell) { return At(cell).is_lossy; };
  std::vector<Cell> cells;
  std::ranges::copy_if(kCellsOnScreen, std::back_inserter(cells),
                       [&](Cell cell) { return is_lossy(cell) || cell == from; });
  std::stable_partition(cells.begin(), cells.end(), [this](Cell cell) { return !At(cell).cause; });
  // Forwards or backwards, the search begins behind the cell and comes round to it last.
  if (backwards) std::ranges::reverse(cells);
  if (from) {
    std::rotate(cells.begin(), std::next(std::ranges::find(cells, *from)), cells.end());
  }
  const auto found = std::ranges::find_if(cells, is_lossy);
  if (found == cells.end()) return std::nullopt;
  return *found;
}

}  // namespace morlek

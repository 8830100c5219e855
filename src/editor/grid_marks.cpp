#include "editor/grid_marks.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <vector>

#include "team/refusal.h"
#include "team/same_text.h"

namespace morlek {
namespace {

CellMark MarkOf(Cell cell, const RosterGrid& grid, const SavePreview& preview,
                const Baseline& baseline) {
  const std::string& text = grid.Text(cell);
  const std::string& known = baseline.texts().Text(cell);
  const std::string& after = preview.TextAfter(cell);
  const bool is_modified = !IsSameText(cell.column, text, known);
  const bool is_lossy = text == known ? text != after : !IsSameText(cell.column, text, after);
  if (!is_modified && !is_lossy) return {};
  return {is_modified, is_lossy, preview.FateOf(cell),
          after,       known,    is_lossy ? CauseElsewhere(grid, preview, cell) : std::nullopt};
}

}  // namespace

GridMarks::GridMarks(const RosterGrid& grid, const SavePreview& preview, const Baseline& baseline) {
  for (const int row : kAllRows) FollowRow(row, grid, preview, baseline);
}

void GridMarks::FollowRow(int row, const RosterGrid& grid, const SavePreview& preview,
                          const Baseline& baseline) {
  const auto first = std::size_t{kColumnCount} * static_cast<std::size_t>(row);
  for (const Cell cell : std::span(kAllCells).subspan(first, kColumnCount)) {
    CellMark& mark = marks_.at(IndexOf(cell));
    mark = MarkOf(cell, grid, preview, baseline);
    marked_.set(IndexOf(cell), mark.is_marked());
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
  auto found = cells.end();
  // From elsewhere the way leads to a cause, on whichever side that is.
  if (!from || !is_lossy(*from)) {
    found =
        std::ranges::find_if(cells, [&](Cell cell) { return is_lossy(cell) && !At(cell).cause; });
  }
  if (found == cells.end()) found = std::ranges::find_if(cells, is_lossy);
  if (found == cells.end()) return std::nullopt;
  return *found;
}

}  // namespace morlek

#include "editor/grid_marks.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "codecs/code_page.h"

namespace morlek {
namespace {

/// The text without what makes no difference to the image.
std::string Essence(Cell cell, std::string_view text) {
  if (IsFeature(cell.column)) {
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    // A zero alone stays.
    text.remove_prefix(zeros == text.size() && zeros > 0 ? zeros - 1 : zeros);
  }
  return UpperCase(text);
}

bool IsSame(Cell cell, const std::string& one, const std::string& other) {
  return one == other || Essence(cell, one) == Essence(cell, other);
}

/// The cells as they stand on the screen.
constexpr std::array<Cell, kCellCount> kCellsOnScreen = [] {
  std::array<Cell, kCellCount> cells{};
  std::size_t place = 0;
  for (int row = 0; row < kSlotCount; ++row) {
    for (const GridColumn& column : ColumnsOfRow(row)) cells.at(place++) = {column.column, row};
  }
  return cells;
}();

}  // namespace

GridMarks::GridMarks(const RosterGrid& grid, const Rehearsal& rehearsal,
                     const ImageKnowledge& knowledge)
    : end_row_(rehearsal.end_row()) {
  for (const Cell cell : kAllCells) {
    const std::string& text = grid.Text(cell);
    const std::string& known = knowledge.texts().Text(cell);
    const std::string& after = rehearsal.TextAfter(cell);
    const bool is_unsaved = !IsSame(cell, text, known);
    const bool is_unkept = text == known ? text != after : !IsSame(cell, text, after);
    if (!is_unsaved && !is_unkept) continue;
    marks_.at(IndexOf(cell)) = {is_unsaved, is_unkept, rehearsal.FateOf(cell), after, known};
    unsaved_count_ += is_unsaved ? 1 : 0;
    unkept_count_ += is_unkept ? 1 : 0;
  }
}

std::optional<Cell> GridMarks::NextUnkept(std::optional<Cell> from, bool backwards) const {
  const auto is_unkept = [this](Cell cell) { return At(cell).is_unkept; };
  // Forwards or backwards, the search begins behind the cell and comes round to it last.
  std::vector<Cell> cells(kCellsOnScreen.begin(), kCellsOnScreen.end());
  if (backwards) std::ranges::reverse(cells);
  if (from) {
    std::rotate(cells.begin(), std::next(std::ranges::find(cells, *from)), cells.end());
  }
  const auto found = std::ranges::find_if(cells, is_unkept);
  if (found == cells.end()) return std::nullopt;
  return *found;
}

}  // namespace morlek

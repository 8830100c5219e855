#include "editor/grid_marks.h"

#include <algorithm>
#include <string_view>

#include "codecs/code_page.h"

namespace morlek {
namespace {

bool IsFeature(Column column) { return column >= Column::kText12; }

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

std::optional<Cell> GridMarks::NextUnkept(Cell cell, bool backwards) const {
  const auto start =
      static_cast<std::size_t>(std::ranges::find(kCellsOnScreen, cell) - kCellsOnScreen.begin());
  for (std::size_t step = 1; step <= kCellCount; ++step) {
    const std::size_t distance = backwards ? kCellCount - step : step;
    const Cell next = kCellsOnScreen.at((start + distance) % kCellCount);
    if (At(next).is_unkept) return next;
  }
  return std::nullopt;
}

}  // namespace morlek

#include "textfile/pasted_block.h"

#include <algorithm>
#include <array>
#include <utility>

#include "codecs/code_page.h"
#include "textfile/pasted_lines.h"

namespace morlek {
namespace {

// Headers that the table of a season has instead of the sheet's own.
constexpr auto kOtherHeaders =
    std::to_array<std::pair<Column, std::string_view>>({{Column::kName, "NAME"},
                                                        {Column::kBattingSide, "HAND"},
                                                        {Column::kThrowingHand, "HAND"},
                                                        {Column::kLegs, "LEGS"}});

bool IsHeader(const BlockColumn& column, std::string_view capitals) {
  return capitals == UpperCase(column.caption) ||
         std::ranges::find(kOtherHeaders, std::pair(column.column, capitals)) !=
             kOtherHeaders.end();
}

/// A pitcher's position is P, and F a face like others.
bool IsHeaderAndValue(Column column) {
  return column == Column::kPosition || column == Column::kFace;
}

/// Whether all that a line has for the columns from a place on are headers that stand there, of
/// batters or of pitchers.
bool HoldsHeaders(const PastedLine& line, std::size_t place) {
  bool holds_headers = false;
  for (const std::string& cell : line.cells) {
    if (place >= kColumnCount) break;
    const BlockColumn& of_batters = kBatters.columns.at(place);
    const BlockColumn& of_pitchers = kPitchers.columns.at(place);
    ++place;
    if (cell.empty()) continue;
    const std::string capitals = UpperCase(cell);
    if (!IsHeader(of_batters, capitals) && !IsHeader(of_pitchers, capitals)) return false;
    holds_headers = holds_headers || !IsHeaderAndValue(of_batters.column);
  }
  return holds_headers;
}

/// Lays a line into a row from a place on. Gives how many of its texts find none.
int LayLine(const PastedLine& line, int row, std::size_t place, RosterGrid& grid) {
  int without_place = line.more;
  for (const std::string& cell : line.cells) {
    if (place < kColumnCount) {
      const Column column = BlockOf(row).columns.at(place++).column;
      grid.SetText({column, row}, PastedText(column, cell));
    } else if (!cell.empty()) {
      ++without_place;
    }
  }
  return without_place;
}

}  // namespace

bool IsBlock(std::string_view text) {
  return WithoutLastLineBreak(text).find_first_of("\t\r\n") != std::string_view::npos;
}

std::string_view WithoutLastLineBreak(std::string_view text) {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  if (text.ends_with('\n') || text.ends_with('\r')) return text.substr(0, text.size() - 1);
  return text;
}

GridWithBlock WithBlock(RosterGrid grid, Cell start, std::string_view text) {
  const Block& block = BlockOf(start.row);
  const std::size_t first = block.PlaceOf(start.column).value_or(kColumnCount);
  const int end_row = first == 0 ? kSlotCount : block.end_row;

  PasteResult result;
  PastedLines lines(WithoutLastLineBreak(text));
  int row = start.row;
  while (const std::optional<PastedLine> line = lines.Next()) {
    if (HoldsHeaders(*line, first)) continue;
    const bool has_row = row < end_row;
    const int without_place = LayLine(*line, row++, has_row ? first : kColumnCount, grid);
    result.cells += without_place;
    if (!has_row && without_place > 0) ++result.lines;
  }
  return {.grid = std::move(grid), .without_place = result};
}

}  // namespace morlek

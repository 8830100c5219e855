#pragma once

#include <string_view>

#include "team/roster_grid.h"

namespace morlek {

/// Whether a clipboard text is a block of cells: it has a tab, or a line break before its end.
[[nodiscard]] bool IsBlock(std::string_view text);

/// A text without the line break at its end.
[[nodiscard]] std::string_view WithoutLastLineBreak(std::string_view text);

/// What of a pasted block found no place in the grid. Only cells that hold a text count.
struct PasteResult {
  int cells = 0;
  /// Lines of which no cell found a place; their cells are counted above as well.
  int lines = 0;

  friend bool operator==(const PasteResult&, const PasteResult&) = default;
};

/// A grid with a pasted block in it.
struct GridWithBlock {
  RosterGrid grid;
  PasteResult without_place;
};

/// The grid with a block laid into it from `start` on, right and down as the columns stand on the
/// screen; PastedLines says what its cells are, and PastedText what becomes of each. A line that
/// holds the headers of the columns is left out. A block that starts in the first column runs on
/// from the batters into the pitchers, any other ends at the edge of its block.
[[nodiscard]] GridWithBlock WithBlock(RosterGrid grid, Cell start, std::string_view text);

}  // namespace morlek

#pragma once

#include <string>
#include <string_view>

#include "team/roster_grid.h"

namespace morlek {

/// Whether a clipboard text is a block of cells: it has a tab, or a line break before its end.
[[nodiscard]] bool IsBlock(std::string_view text);

/// A text without the line break at its end.
[[nodiscard]] std::string_view WithoutLastLineBreak(std::string_view text);

/// The grid with a block laid into it from `start` on, right and down as the columns stand on the
/// screen: tabs separate the cells, line breaks the rows. What goes beyond the edges of the block
/// of batters or pitchers is left out, and longer texts than a cell holds are truncated.
[[nodiscard]] RosterGrid WithBlock(RosterGrid grid, Cell start, std::string_view text);

}  // namespace morlek

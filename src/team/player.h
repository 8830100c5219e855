#pragma once

#include <array>
#include <optional>
#include <string>

#include "team/roster_grid.h"

namespace morlek {

/// A player as the grid shows him, apart from the slot in which he stands. A plain value.
struct Player {
  /// Of batters or of pitchers; never null.
  const Block* block = &kBatters;
  /// In the order of the block's columns on the screen.
  std::array<std::string, kColumnCount> texts;

  friend bool operator==(const Player&, const Player&) = default;
};

/// The player in a row, 0 to 24.
[[nodiscard]] Player PlayerAt(const RosterGrid& grid, int row);

/// The grid with a player put into a row, 0 to 24. Between a batter and a pitcher only the columns
/// go over that both have: name, position, number, face, body and legs.
[[nodiscard]] RosterGrid WithPlayer(RosterGrid grid, int row, const Player& player);

/// The row of the neighbour above (-1) or below (+1); nothing where the block ends.
[[nodiscard]] std::optional<int> NeighborOf(int row, int direction);

}  // namespace morlek

#include "team/player.h"

namespace morlek {

Player PlayerAt(const RosterGrid& grid, int row) {
  Player player{.block = &BlockOf(row), .texts = {}};
  for (std::size_t place = 0; place < player.texts.size(); ++place) {
    player.texts.at(place) = grid.Text({player.block->columns.at(place).column, row});
  }
  return player;
}

RosterGrid WithPlayer(RosterGrid grid, int row, const Player& player) {
  for (std::size_t place = 0; place < player.texts.size(); ++place) {
    const Column column = player.block->columns.at(place).column;
    if (BlockOf(row).PlaceOf(column)) grid.SetText({column, row}, player.texts.at(place));
  }
  return grid;
}

std::optional<int> NeighborOf(int row, int direction) {
  if (!BlockOf(row).Contains(row + direction)) return std::nullopt;
  return row + direction;
}

}  // namespace morlek

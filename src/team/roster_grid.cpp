#include "team/roster_grid.h"

#include <utility>

namespace morlek {
namespace {

/// The cell in a grid, constant or not.
template <typename Texts>
auto& Cell(Texts& texts, Column column, int row) {
  return texts.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column) - 1);
}

}  // namespace

const std::string& RosterGrid::Text(Column column, int row) const {
  return Cell(texts_, column, row);
}

void RosterGrid::SetText(Column column, int row, std::string text) {
  Cell(texts_, column, row) = std::move(text);
  if (listener_) listener_(column, row);
}

void RosterGrid::SetListener(Listener listener) { listener_ = std::move(listener); }

}  // namespace morlek

#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "editor/grid_change.h"

namespace morlek {

/// The steps that changed the grid, to be taken back and made again. It holds at most 32 MiB: the
/// oldest steps go first.
class History {
 public:
  /// Adds a step that has been made, of at least one cell. Steps that were taken back are dropped.
  void Add(GridChange step);

  /// Adds what was typed into a cell. All that is typed into one cell in one visit is one step,
  /// and none at all when it comes back to what it was.
  void AddTyping(const CellChange& typed);

  /// Ends a visit: what is typed from now on is another step.
  void EndVisit() { visited_.reset(); }

  /// Drops all steps.
  void Clear() { *this = {}; }

  /// The change that takes the last step back, or makes it again; nothing when there is no step.
  [[nodiscard]] std::optional<GridChange> Undo();
  [[nodiscard]] std::optional<GridChange> Redo();

  [[nodiscard]] bool can_undo() const { return done_ > 0; }
  [[nodiscard]] bool can_redo() const { return done_ < steps_.size(); }

 private:
  void DropLastStep();

  // Steps before `done_` have been made, later ones were taken back.
  std::deque<GridChange> steps_;
  std::size_t done_ = 0;
  std::size_t bytes_ = 0;
  // The cell whose typing made the last step and goes on.
  std::optional<Cell> visited_;
};

}  // namespace morlek

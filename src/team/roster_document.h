#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "team/roster_grid.h"

namespace morlek {

/// What a change did to one cell.
struct CellChange {
  Cell cell;
  std::string before;
  std::string after;
};

/// What a change did to the grid: the cells whose texts differ now, in the order of kAllCells.
using GridChange = std::vector<CellChange>;

/// Owns the roster grid. Every change goes through it, is told to all observers, and can be taken
/// back unless it was a load or too much has been changed since.
class RosterDocument {
 public:
  using Observer = std::function<void(const GridChange& change)>;

  /// Keeps an observer subscribed; destroying it, before or after the document, ends that.
  using Subscription = std::shared_ptr<const Observer>;

  [[nodiscard]] const RosterGrid& grid() const { return grid_; }

  /// Tells `observer` of every change, after it was made and as long as the subscription lives. A
  /// change that changes no text is not told.
  [[nodiscard]] Subscription Subscribe(Observer observer);

  /// Puts what was typed into a cell. All that is typed into one cell in one visit is one step.
  void Type(Cell cell, std::string text);

  /// Ends a visit: what is typed from now on is another step.
  void EndVisit() { visited_.reset(); }

  /// Puts a text that was picked into a cell, in one step.
  void Put(Cell cell, std::string text);

  /// Replaces the grid in one step: a paste, an import.
  void Replace(const RosterGrid& grid);

  /// Replaces the grid by a load, which begins a new history.
  void Restart(const RosterGrid& grid);

  /// Begins a new history with the grid as it is.
  void ForgetHistory();

  /// Takes the last step back, or makes it again. Gives the first cell that it changed, or nothing
  /// when there is no such step.
  std::optional<Cell> Undo();
  std::optional<Cell> Redo();

  [[nodiscard]] bool can_undo() const { return done_ > 0; }
  [[nodiscard]] bool can_redo() const { return done_ < steps_.size(); }

 private:
  /// Puts the texts before or after a change into the grid, and tells.
  void Apply(const GridChange& change);
  void AddStep(GridChange change);
  void DropLastStep();
  [[nodiscard]] GridChange ChangeTo(const RosterGrid& grid) const;

  RosterGrid grid_;
  std::vector<std::weak_ptr<const Observer>> observers_;
  // Steps before `done_` have been made, later ones were taken back.
  std::deque<GridChange> steps_;
  std::size_t done_ = 0;
  std::size_t history_bytes_ = 0;
  // The cell whose typing made the last step and goes on.
  std::optional<Cell> visited_;
};

}  // namespace morlek

#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "editor/grid_change.h"
#include "editor/place.h"

namespace morlek {

/// A scene, and the team that had been asked for last while it was shown.
struct PassedScene {
  Scene scene;
  const Team* picked = nullptr;
};

/// A step that can be taken back and made again: what it did to the texts of the grid, and, when it
/// went from one scene to another, both of them.
struct Step {
  GridChange texts;
  struct SceneChange {
    PassedScene before;
    PassedScene after;
  };
  std::optional<SceneChange> scenes;
};

/// All steps but SAVE, which alone writes the image. It holds at most 32 MiB: the oldest steps go
/// first.
class History {
 public:
  /// Adds a step that has been made, unless it changed nothing, and ends a visit. Steps that were
  /// taken back are dropped.
  void Add(Step step);

  /// Adds what was typed into a cell. All that is typed into one cell in one visit is one step,
  /// and none at all when it comes back to what it was.
  void AddTyping(const CellChange& typed) { AddToVisit(typed, Way::kTyping); }

  /// Likewise for a code that was leafed to. Typing and leafing are steps of their own.
  void AddLeafing(const CellChange& leafed) { AddToVisit(leafed, Way::kLeafing); }

  /// Ends a visit: what is typed or leafed from now on is another step.
  void EndVisit() { visited_.reset(); }

  /// The step that takes the last one back, or makes it again; nothing when there is none.
  [[nodiscard]] std::optional<Step> Undo();
  [[nodiscard]] std::optional<Step> Redo();

  [[nodiscard]] bool can_undo() const { return done_ > 0; }
  [[nodiscard]] bool can_redo() const { return done_ < steps_.size(); }

 private:
  /// How a text came into a cell that was visited.
  enum class Way { kTyping, kLeafing };
  struct Visit {
    Cell cell;
    Way way;
    friend bool operator==(const Visit&, const Visit&) = default;
  };

  void AddToVisit(const CellChange& change, Way way);
  void DropLastStep();

  // Steps before `done_` have been made, later ones were taken back.
  std::deque<Step> steps_;
  std::size_t done_ = 0;
  std::size_t bytes_ = 0;
  // What made the last step and goes on.
  std::optional<Visit> visited_;
};

}  // namespace morlek

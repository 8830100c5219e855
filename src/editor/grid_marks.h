#pragma once

#include <array>
#include <string>

#include "editor/image_knowledge.h"
#include "team/rehearsal.h"
#include "team/roster_grid.h"

namespace morlek {

/// What a person should know of a cell before pressing SAVE.
struct CellMark {
  /// The text is not what the image is known to hold there.
  bool is_unsaved = false;
  /// SAVE would not keep the text: a load would then show `after` instead.
  bool is_unkept = false;

  // These tell more of a cell that is marked.
  Rehearsal::Fate fate = Rehearsal::Fate::kStored;
  std::string after;
  std::string known;

  [[nodiscard]] bool is_marked() const { return is_unsaved || is_unkept; }

  friend bool operator==(const CellMark&, const CellMark&) = default;
};

/// The marks of all cells.
class GridMarks {
 public:
  /// No cell is marked.
  GridMarks() = default;

  /// The marks of `grid`, of which `rehearsal` has been made. Small letters against capitals and
  /// leading zeros of a features code make no difference; but where the text is just what the image
  /// shows, SAVE has to keep it to the letter.
  GridMarks(const RosterGrid& grid, const Rehearsal& rehearsal, const ImageKnowledge& knowledge);

  [[nodiscard]] const CellMark& At(Cell cell) const { return marks_.at(IndexOf(cell)); }

  /// How many cells are marked so.
  [[nodiscard]] int unsaved_count() const { return unsaved_count_; }
  [[nodiscard]] int unkept_count() const { return unkept_count_; }

  /// The row of the name that ends SAVE, or nothing when none does.
  [[nodiscard]] std::optional<int> end_row() const { return end_row_; }

  /// The next cell that SAVE will not keep, as the cells stand on the screen, after `from` (or
  /// before it, backwards), going round; without `from` the first one (or the last). Nothing when
  /// there is none.
  [[nodiscard]] std::optional<Cell> NextUnkept(std::optional<Cell> from, bool backwards) const;

 private:
  std::array<CellMark, kCellCount> marks_;
  int unsaved_count_ = 0;
  int unkept_count_ = 0;
  std::optional<int> end_row_;
};

}  // namespace morlek

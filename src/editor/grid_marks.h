#pragma once

#include <algorithm>
#include <array>
#include <bitset>
#include <string>

#include "editor/baseline.h"
#include "team/roster_grid.h"
#include "team/save_preview.h"

namespace morlek {

/// What a person should know of a cell before pressing SAVE.
struct CellMark {
  /// The text is not what the image is known to hold there.
  bool is_modified = false;
  /// SAVE would not keep the text: a load would then show `after` instead.
  bool is_lossy = false;

  // Of a cell that is marked:
  SavePreview::Fate fate = SavePreview::Fate::kStored;
  std::string after;
  std::string known;
  /// The cell because of which SAVE would not keep a text that is good by itself; nothing when the
  /// text is itself the cause.
  std::optional<Cell> cause;

  [[nodiscard]] bool is_marked() const { return is_modified || is_lossy; }

  friend bool operator==(const CellMark&, const CellMark&) = default;
};

/// The marks of all cells.
class GridMarks {
 public:
  /// No cell is marked.
  GridMarks() = default;

  /// The marks of `grid`, of which `preview` has been made. Small letters against capitals and
  /// leading zeros of a features code make no difference; but where the text is just what the image
  /// shows, SAVE has to keep it to the letter.
  GridMarks(const RosterGrid& grid, const SavePreview& preview, const Baseline& baseline);

  /// Follows a change of one row, which `preview` has followed.
  void FollowRow(int row, const RosterGrid& grid, const SavePreview& preview,
                 const Baseline& baseline);

  [[nodiscard]] const CellMark& At(Cell cell) const { return marks_.at(IndexOf(cell)); }

  /// Whether each cell is marked, by its index.
  [[nodiscard]] const std::bitset<kCellCount>& marked() const { return marked_; }

  /// How many cells are marked so.
  [[nodiscard]] int modified_count() const { return CountOf(&CellMark::is_modified); }
  [[nodiscard]] int lossy_count() const { return CountOf(&CellMark::is_lossy); }

  /// The next cell that SAVE will not keep after `from` (or before it, backwards), going round:
  /// the causes, then what is lost because of them, both as the cells stand on the screen. From a
  /// cell that SAVE keeps it is a cause, if there is one; without `from` the first one (or the
  /// last). Nothing when SAVE keeps all cells.
  [[nodiscard]] std::optional<Cell> NextLossy(std::optional<Cell> from, bool backwards) const;

  friend bool operator==(const GridMarks&, const GridMarks&) = default;

 private:
  [[nodiscard]] int CountOf(bool CellMark::*kind) const {
    return static_cast<int>(std::ranges::count(marks_, true, kind));
  }

  std::array<CellMark, kCellCount> marks_;
  std::bitset<kCellCount> marked_;
};

}  // namespace morlek

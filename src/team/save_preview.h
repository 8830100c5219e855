#pragma once

#include <optional>
#include <string>

#include "team/codec_state.h"
#include "team/record_bytes.h"
#include "team/roster_grid.h"

namespace morlek {

/// What the grid would be if it were saved now and the team loaded again. It runs the real encoder
/// and decoder on copies, in memory: no file, no message, nothing kept.
class SavePreview {
 public:
  /// `state` is what loads and saves keep now, `known` the bytes that the image is known to hold.
  /// A byte that `known` lacks counts as 0. A rating that is no number comes out empty.
  SavePreview(const RosterGrid& grid, const CodecState& state, const RecordBytes& known);

  /// Follows a change of one row of the grid, with the same `state` and `known`. False when that
  /// row or another depends on what stands in other rows: the preview is then of no use any more.
  [[nodiscard]] bool FollowRow(int row, const RosterGrid& grid, const CodecState& state,
                               const RecordBytes& known);

  enum class Fate {
    kStored,      // SAVE writes the cell
    kSkipped,     // SAVE writes nothing for the cell
    kEndsSave,    // the cell is a name that is too long, and SAVE ends there
    kNotReached,  // SAVE ended earlier; but the initial of a name is stored
  };
  [[nodiscard]] Fate FateOf(Cell cell) const;

  /// What a load after SAVE would show in the cell; lives as long as the preview.
  [[nodiscard]] const std::string& TextAfter(Cell cell) const { return after_.Text(cell); }

  /// The whole grid as a load after SAVE would show it; lives as long as the preview.
  [[nodiscard]] const RosterGrid& after() const { return after_; }

  /// The bytes that SAVE would write.
  [[nodiscard]] const RecordBytes& written() const { return written_; }

  /// The row of the name that ends SAVE, or nothing when none does.
  [[nodiscard]] std::optional<int> end_row() const { return end_row_; }

 private:
  /// Saves and loads some rows. False when one of them depends on what stands in other rows.
  bool Rehearse(Rows rows, const RosterGrid& grid, CodecState state, const RecordBytes& known);

  RecordBytes written_;
  std::optional<int> end_row_;
  RosterGrid after_;
  // Whether every byte and every text follows from its row alone.
  bool are_rows_independent_;
};

}  // namespace morlek

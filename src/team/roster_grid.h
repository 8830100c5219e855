#pragma once

#include <array>
#include <string>

#include "team/cell.h"

namespace morlek {

/// The longest text of a cell, in characters. Longer input is truncated, so that memory stays
/// bounded.
inline constexpr std::size_t kLongestText = 32767;

/// The roster grid: 25 rows, one a roster slot, of 14 texts in the code page. The texts are as the
/// person sees them and are not validated; the saver decides what can be saved. A plain value.
class RosterGrid {
 public:
  /// The text of a cell, valid until the next SetText. Throws std::out_of_range for a cell that the
  /// grid does not have.
  [[nodiscard]] const std::string& Text(Cell cell) const;

  /// Replaces the text of a cell; throws as Text does.
  void SetText(Cell cell, std::string text);

  friend bool operator==(const RosterGrid&, const RosterGrid&) = default;

 private:
  std::array<std::string, kCellCount> texts_;
};

/// The player of a row, 0 to 24, in words: "batter 3", "pitcher 10".
[[nodiscard]] std::string PlayerText(int row);

}  // namespace morlek

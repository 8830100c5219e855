#pragma once

#include <array>
#include <string>

#include "team/cell.h"

namespace morlek {

/// The longest text of a cell, in characters. What comes in longer is truncated, so that memory
/// stays bounded.
inline constexpr std::size_t kLongestText = 32767;

/// The roster grid: 25 rows, one a roster slot, of 14 texts in the code page. The texts are what
/// the person sees, whatever they hold; only the saver judges them. A plain value.
class RosterGrid {
 public:
  /// The text of a cell. Both throw std::out_of_range for a cell that the grid does not have.
  [[nodiscard]] const std::string& Text(Cell cell) const;
  void SetText(Cell cell, std::string text);

  friend bool operator==(const RosterGrid&, const RosterGrid&) = default;

 private:
  std::array<std::string, kCellCount> texts_;
};

/// The player of a row, 0 to 24, in words: "batter 3", "pitcher 10".
[[nodiscard]] std::string PlayerText(int row);

}  // namespace morlek

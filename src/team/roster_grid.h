#pragma once

#include <array>
#include <functional>
#include <string>

#include "image/record_layout.h"
#include "team/grid_columns.h"

namespace morlek {

/// The roster grid: 25 rows, one a roster slot, of 14 texts in the code page. The texts are what
/// the person sees, whatever they hold; only the saver judges them.
class RosterGrid {
 public:
  using Listener = std::function<void(Column column, int row)>;

  /// The text of a cell, row 0 to 24.
  [[nodiscard]] const std::string& Text(Column column, int row) const;

  /// Puts a text into a cell and tells the listener.
  void SetText(Column column, int row, std::string text);

  /// The one listener that is told after a cell was set; the window's boxes follow by it.
  void SetListener(Listener listener);

 private:
  std::array<std::array<std::string, kColumnCount>, kSlotCount> texts_;
  Listener listener_;
};

}  // namespace morlek

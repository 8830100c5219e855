#pragma once

#include <QWidget>
#include <array>

#include "team/roster_grid.h"

namespace morlek {

class StanceChooser;
class StanceView;

/// The part of the window right of the grid: the face, body and legs choosers, one of them in view
/// at a time, and the player of the stance row put together.
class StancePanel : public QWidget {
  Q_OBJECT

 public:
  StancePanel(RosterGrid& grid, QWidget* parent);

  /// True for the columns of face, body and legs.
  [[nodiscard]] static bool IsFeature(Column column);

  /// Shows the chooser of a features column, hides the other two, and makes `row` (0 to 24) the
  /// stance row, into which all three choosers put their codes.
  void Choose(Column column, int row);

  /// A cell of the grid has changed.
  void Follow(int row);

 private:
  void AddChooser(std::size_t place);
  void ShowStanceRow();

  RosterGrid& grid_;
  int stance_row_ = 0;
  std::array<StanceChooser*, 3> choosers_{};
  StanceView* view_ = nullptr;
};

}  // namespace morlek

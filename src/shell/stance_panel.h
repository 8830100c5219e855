#pragma once

#include <QWidget>
#include <array>
#include <string_view>

#include "team/roster_document.h"

namespace morlek {

class StanceChooser;
class StanceView;

/// The part of the window right of the grid: the face, body and legs choosers, one of them in view
/// at a time, and the player of the stance row put together.
class StancePanel : public QWidget {
  Q_OBJECT

 public:
  /// The document, into which picks go and from which the player is shown, outlives the panel. No
  /// chooser is in view at first, and the stance row is 0.
  StancePanel(RosterDocument& document, QWidget* parent);

  /// Shows the chooser of a features cell's column (for any other cell none), hides the other two,
  /// and makes the cell's row the stance row, into which all three choosers put their codes.
  void Choose(Cell cell);

  /// Dresses the player in the colours of the club with this display name; of no club's if there is
  /// none.
  void ShowTeam(std::string_view display_name);

 signals:
  /// A picture was clicked; its code stands in this cell of the stance row now.
  void Picked(Cell cell);

 private:
  void AddChooser(std::size_t place);
  void ShowStanceRow();

  RosterDocument& document_;
  int stance_row_ = 0;
  std::array<StanceChooser*, 3> choosers_{};
  StanceView* view_ = nullptr;
  RosterDocument::Subscription subscription_;
};

}  // namespace morlek

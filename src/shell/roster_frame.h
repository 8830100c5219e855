#pragma once

#include <QFrame>
#include <array>
#include <string_view>

#include "team/roster_grid.h"

class QLabel;

namespace morlek {

class RosterBox;

/// The frame with the roster grid, its headers, the team's name and the SAVE button. Its boxes are
/// the view of a roster grid: each shows its cell's text and puts what is typed back into it.
class RosterFrame : public QFrame {
  Q_OBJECT

 public:
  Q_DISABLE_COPY_MOVE(RosterFrame)

  RosterFrame(RosterGrid& grid, QWidget* parent);
  ~RosterFrame() override;

  /// Puts everything into the frame, which is empty at first: its 350 boxes take as long as the
  /// rest of the window, which need not wait for them. To be called once, before the grid and the
  /// frame are used.
  void Fill();

  void SetTeamName(std::string_view display_name);

 signals:
  void SaveRequested();

  /// The box of this column and row (0 to 24) received the focus, or was clicked again.
  void CellVisited(Column column, int row);

  /// The text of a cell of this row has changed.
  void RowChanged(int row);

 private:
  void AddHeaders(const BlockColumns& columns, int first_index, int top);
  void AddRow(int row);
  void AddTeamNameAndSave();
  void StepRow(const RosterBox& from, int rows);

  RosterGrid& grid_;
  QLabel* team_name_ = nullptr;
  // Row by row, each row in the order of the arrays' numbers; null before they are made.
  std::array<std::array<RosterBox*, kColumnCount>, kSlotCount> boxes_{};
};

}  // namespace morlek

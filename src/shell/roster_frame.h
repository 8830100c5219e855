#pragma once

#include <QFrame>
#include <array>
#include <string_view>

#include "team/roster_document.h"

class QLabel;

namespace morlek {

class RosterBox;

/// The frame with the roster grid, its headers, the team's name and the SAVE button. Its boxes are
/// the view of a document: each shows its cell's text and puts what is typed back into it.
class RosterFrame : public QFrame {
  Q_OBJECT

 public:
  Q_DISABLE_COPY_MOVE(RosterFrame)

  /// The document outlives the frame.
  RosterFrame(RosterDocument& document, QWidget* parent);

  /// Selects the text of a cell of row 0 to 24 if its box has the focus, so that typing replaces
  /// it.
  void SelectForTyping(Cell cell);

  /// Shows a text of the code page as the team's name, in one line that is cut where it is too
  /// long.
  void SetTeamName(std::string_view display_name);

 signals:
  /// SAVE or its key was pressed; a hidden button can still be pressed by an assistive tool.
  void SaveRequested();

  /// The grid can now be reached by mouse and keys, or can no more: it is hidden or disabled.
  void ReachChanged(bool reachable);

  /// The box of this cell received the focus, or was clicked again.
  void CellVisited(Cell cell);

 protected:
  bool event(QEvent* event) override;

 private:
  void AddHeaders(const BlockColumns& columns, int first_index, int top);
  void AddRow(int row);
  void AddTeamNameAndSave();
  void StepRow(Cell from, int rows);

  /// Shows the texts that a change has brought.
  void Follow(const GridChange& change);

  RosterDocument& document_;
  QLabel* team_name_ = nullptr;
  std::array<RosterBox*, kCellCount> boxes_{};
  RosterDocument::Subscription subscription_;
};

}  // namespace morlek

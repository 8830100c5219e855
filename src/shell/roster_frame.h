#pragma once

#include <QFrame>
#include <array>
#include <optional>
#include <string_view>

#include "editor/grid_marks.h"
#include "shell/code_page_validator.h"
#include "team/roster_document.h"

class QAction;
class QLabel;

namespace morlek {

class FilledButton;
class RosterBox;

/// The frame with the roster grid, its headers, the team's name and the SAVE button. Its boxes are
/// the view of a document: each shows its cell's text and puts what is typed back into it.
class RosterFrame : public QFrame {
  Q_OBJECT

 public:
  /// The document outlives the frame.
  RosterFrame(RosterDocument& document, QWidget* parent);

  /// Selects the text of a cell if its box has the focus, so that typing replaces it.
  void SelectForTyping(Cell cell);

  /// The team has just been loaded: Escape gives back what the box with the focus holds now.
  void BeginVisit();

  /// Shows the marks of all cells, on SAVE whether anything is not saved, and what can be undone.
  /// To be called after every step.
  void ShowMarks(const GridMarks& marks);

  /// Tints the row of players into which picked pictures go; nothing when none is in view.
  void ShowStanceRow(std::optional<int> row);

  /// Shows a text of the code page as the team's name, in one line that is cut where it is too
  /// long.
  void SetTeamName(std::string_view display_name);

 signals:
  /// SAVE or its key was pressed; a hidden button can still be pressed by an assistive tool.
  void SaveRequested();

  /// The grid can now be reached by mouse and keys, or can no more: it is hidden or disabled.
  void ReachChanged(bool reachable);

  /// A block of cells, in the code page, was pasted into the box of this cell.
  void BlockPasted(Cell cell, const std::string& block);

  /// The box of this cell received the focus, or was clicked again.
  void CellVisited(Cell cell);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddHeaders(const BlockColumns& columns, int first_index, int top);
  void AddRow(int row);
  void AddTeamNameAndSave();
  void AddKeys();
  void StepRow(Cell from, int rows);

  /// Gives a cell the focus, as a visit.
  void GoTo(Cell cell);

  /// Takes a step of the history, if there was one, and goes where it changed the grid.
  void FollowHistory(std::optional<Cell> changed);

  /// Goes to the next cell that SAVE will not keep, or back to the one before.
  void GoToUnkept(bool backwards);

  [[nodiscard]] RosterBox& BoxAt(Cell cell) const { return *boxes_.at(IndexOf(cell)); }
  /// The box with the focus, or null.
  [[nodiscard]] RosterBox* FocusedBox() const;
  void TintRow(std::optional<int> row);

  /// Shows the texts that a change has brought.
  void Follow(const GridChange& change);

  RosterDocument& document_;
  CodePageValidator code_page_;
  QLabel* team_name_ = nullptr;
  FilledButton* save_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  std::array<RosterBox*, kCellCount> boxes_{};
  GridMarks marks_;
  std::optional<int> focus_row_;
  std::optional<int> stance_row_;
  RosterDocument::Subscription subscription_;
};

}  // namespace morlek

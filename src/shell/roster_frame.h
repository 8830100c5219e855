#pragma once

#include <QFrame>
#include <array>
#include <bitset>
#include <optional>

#include "editor/editor.h"
#include "shell/code_page_text.h"

class QAction;
class QLabel;

namespace morlek {

class FilledButton;
class PlayerCommands;
class RosterBox;
struct BlockLayout;

/// The frame with the roster grid, its headers, the team's name and the SAVE button. Its boxes show
/// the cells of the editor's grid and pass on what is typed.
class RosterFrame : public QFrame {
  Q_OBJECT

 public:
  /// Hidden until a team is shown. The editor outlives the frame.
  RosterFrame(Editor& editor, QWidget* parent);

  /// Shows the current state.
  void Show(const EditorState& state, const StateChange& change);

 signals:
  /// SAVE or its key was pressed; a hidden button can still be pressed by an assistive tool.
  void SaveRequested();

  /// The box of this cell received the focus, or was clicked again.
  void CellVisited(Cell cell);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddHeaders(const BlockLayout& layout);
  void AddBox(Cell cell);
  void AddTeamNameAndSave();
  void AddKeys();
  void StepRow(Cell from, int rows);

  /// Gives a cell the focus and begins a visit. Does nothing without a cell.
  void GoTo(std::optional<Cell> cell);

  /// Goes to the next cell that SAVE will not keep, or back to the one before.
  void GoToLossy(bool backwards);

  [[nodiscard]] RosterBox& BoxAt(Cell cell) const { return *boxes_.at(IndexOf(cell)); }
  /// The box with the focus, or null, and its cell.
  [[nodiscard]] RosterBox* FocusedBox() const;
  [[nodiscard]] std::optional<Cell> FocusedCell() const;

  void ShowVisible(bool shown);
  void ShowTexts(const StateChange& change);
  void ShowMarks(const EditorState& state, const StateChange& change);
  void ShowMark(const EditorState& state, Cell cell);
  void ShowTints();

  Editor& editor_;
  CodePageValidator code_page_;
  QLabel* team_name_ = nullptr;
  FilledButton* save_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  PlayerCommands* players_ = nullptr;
  std::array<RosterBox*, kCellCount> boxes_{};
  // Whether each box shows a mark, by the index of its cell.
  std::bitset<kCellCount> marked_;
  static constexpr int kNoRow = -1;
  struct TintedRows {
    int focus = kNoRow;
    int stance = kNoRow;
    friend bool operator==(const TintedRows&, const TintedRows&) = default;
  };
  TintedRows tinted_rows_;
  std::optional<int> focus_row_;
};

}  // namespace morlek

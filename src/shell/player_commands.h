#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "editor/editor.h"

class QAction;
class QKeySequence;
class QWidget;

namespace morlek {

/// What can be done with a whole player: actions of the frame of the roster, for their keys and for
/// the context menu of its boxes. All work on the row of the box with the focus.
class PlayerCommands : public QObject {
  Q_OBJECT

 public:
  using FocusedCell = std::function<std::optional<Cell>()>;

  /// Adds the actions, below a separator, to the frame, to which the object then belongs.
  /// `focused_cell` gives the cell of the box with the focus, if one has it.
  PlayerCommands(Editor& editor, QWidget& frame, FocusedCell focused_cell);

  /// The commands with their keys, one a line.
  [[nodiscard]] QString KeysText() const;

  /// A context menu opens: disables what could not do anything. Until the menu closes, nothing else
  /// can change that.
  void MenuOpens();

  /// Enables all again, for the keys: whether the clipboard holds a player is asked only when it
  /// matters, since another program has to answer.
  void MenuCloses();

 signals:
  /// A player went to another row, where the focus is to follow him.
  void Moved(Cell to);

 private:
  QAction* Add(QWidget& frame, const QString& caption, const QKeySequence& key,
               void (PlayerCommands::*run)(Cell));

  void Copy(Cell cell);
  void Paste(Cell cell);
  void Exchange(Cell cell);
  void MoveUp(Cell cell);
  void MoveDown(Cell cell);
  void CopyWholeTeam(Cell cell);
  void Move(Cell cell, int direction);

  /// The player of a row by his name, or in words where he has none.
  [[nodiscard]] std::string PlayerIn(int row) const;

  Editor& editor_;
  FocusedCell focused_cell_;
  QList<QAction*> actions_;
  QAction* paste_ = nullptr;
  QAction* exchange_ = nullptr;
  QAction* move_up_ = nullptr;
  QAction* move_down_ = nullptr;
};

}  // namespace morlek

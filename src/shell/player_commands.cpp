#include "shell/player_commands.h"

#include <QAction>
#include <QWidget>
#include <utility>

#include "shell/player_clipboard.h"

namespace morlek {

PlayerCommands::PlayerCommands(Editor& editor, QWidget& frame, FocusedCell focused_cell)
    : QObject(&frame), editor_(editor), focused_cell_(std::move(focused_cell)) {
  auto* separator = new QAction(&frame);
  separator->setSeparator(true);
  frame.addAction(separator);
  constexpr auto kKeys = Qt::CTRL | Qt::SHIFT;
  Add(frame, "Copy P&layer", kKeys | Qt::Key_C, &PlayerCommands::Copy);
  paste_ = Add(frame, "Paste Pla&yer", kKeys | Qt::Key_V, &PlayerCommands::Paste);
  exchange_ =
      Add(frame, "E&xchange with Copied Player", kKeys | Qt::Key_X, &PlayerCommands::Exchange);
  move_up_ = Add(frame, "&Move Player Up", Qt::ALT | Qt::Key_Up, &PlayerCommands::MoveUp);
  move_down_ = Add(frame, "Move Player &Down", Qt::ALT | Qt::Key_Down, &PlayerCommands::MoveDown);
  Add(frame, "Copy T&eam", kKeys | Qt::Key_T, &PlayerCommands::CopyWholeTeam);
}

QAction* PlayerCommands::Add(QWidget& frame, const QString& caption, const QKeySequence& key,
                             void (PlayerCommands::*run)(Cell)) {
  auto* action = new QAction(caption, this);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(action, &QAction::triggered, this, [this, run] {
    const std::optional<Cell> cell = focused_cell_();
    if (cell && editor_.state().scene.is_grid_shown) (this->*run)(*cell);
  });
  frame.addAction(action);
  actions_ << action;
  return action;
}

QString PlayerCommands::KeysText() const {
  QStringList lines;
  for (const QAction* action : actions_) {
    lines << action->text().remove('&') + ": " +
                 action->shortcut().toString(QKeySequence::NativeText);
  }
  return lines.join('\n');
}

std::string PlayerCommands::PlayerIn(int row) const {
  const std::string& name = editor_.state().grid.Text({Column::kName, row});
  return name.empty() ? PlayerText(row) : name;
}

void PlayerCommands::MenuOpens() {
  const std::optional<Cell> cell = focused_cell_();
  const bool has_player = cell && CopiedPlayer(BlockOf(cell->row));
  paste_->setEnabled(has_player);
  exchange_->setEnabled(has_player);
  move_up_->setEnabled(cell && NeighborOf(cell->row, -1));
  move_down_->setEnabled(cell && NeighborOf(cell->row, +1));
}

void PlayerCommands::MenuCloses() {
  for (QAction* action : {paste_, exchange_, move_up_, move_down_}) action->setEnabled(true);
}

void PlayerCommands::Copy(Cell cell) {
  CopyPlayer(PlayerAt(editor_.state().grid, cell.row));
  editor_.NoteCopy(PlayerIn(cell.row));
}

void PlayerCommands::Paste(Cell cell) {
  if (const auto player = CopiedPlayer(BlockOf(cell.row))) editor_.PastePlayer(cell.row, *player);
}

void PlayerCommands::Exchange(Cell cell) {
  const auto player = CopiedPlayer(BlockOf(cell.row));
  if (!player) return;
  const std::string copied = PlayerIn(cell.row);
  CopyPlayer(PlayerAt(editor_.state().grid, cell.row));
  editor_.PastePlayer(cell.row, *player);
  editor_.NoteCopy(copied);
}

void PlayerCommands::MoveUp(Cell cell) { Move(cell, -1); }

void PlayerCommands::MoveDown(Cell cell) { Move(cell, +1); }

void PlayerCommands::Move(Cell cell, int direction) {
  const std::optional<int> row = editor_.MovePlayer(cell.row, direction);
  if (row) emit Moved({cell.column, *row});
}

void PlayerCommands::CopyWholeTeam(Cell /*cell*/) {
  CopyTeam(editor_.state().grid);
  editor_.NoteCopy("the team");
}

}  // namespace morlek

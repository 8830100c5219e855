#include "shell/roster_frame.h"

#include <QAction>
#include <QApplication>
#include <QFocusFrame>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QShortcut>
#include <QToolTip>
#include <utility>

#include "shell/form_layout.h"
#include "shell/leafing.h"
#include "shell/mark_text.h"
#include "shell/player_commands.h"
#include "shell/roster_box.h"
#include "team/accepted_texts.h"
#include "ui/filled_button.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"
#include "ui/twips.h"

namespace morlek {
namespace {

/// The gap above the band of a block's headers, in logical pixels, which separates the blocks.
constexpr int kHeaderGap = 4;

/// A ring in the accent colour around the box of a grid that has the focus, above its neighbours;
/// hidden when no box has it. A child of the widget that holds the boxes, made after them. Mouse,
/// drops and assistive tools reach the box through it: the toolkit's own frame of the focus is no
/// part of what those tools read.
class FocusRing : public QFocusFrame {
 public:
  explicit FocusRing(QWidget* grid) : QFocusFrame(grid) {
    setAccessibleName("ring of the focus");
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*old*/, QWidget* focused) { Follow(focused); });
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    if (!box_) return;
    QPainter painter(this);
    FrameSnapped(painter, rect(), 2, theme::ShadesOf(palette()).accent);
    box_->PaintMarks(painter);
  }

 private:
  void Follow(QWidget* focused) {
    const auto* box = qobject_cast<RosterBox*>(focused);
    const bool is_here = box != nullptr && box->parentWidget() == parentWidget();
    box_ = is_here ? box : nullptr;
    if (is_here) setGeometry(box->geometry());
    setVisible(is_here);
  }

  QPointer<const RosterBox> box_;
};

}  // namespace

RosterFrame::RosterFrame(Editor& editor, QWidget* parent) : QFrame(parent), editor_(editor) {
  setObjectName("Frame1");
  setAccessibleName("roster");
  setGeometry(RectFromTwips(60, 720, 6555, 9015));
  AddKeys();
  for (const BlockLayout& layout : kBlockLayouts) AddHeaders(layout);
  for (const Cell cell : kCellsOnScreen) AddBox(cell);
  AddTeamNameAndSave();
  new FocusRing(this);
  hide();
}

void RosterFrame::Show(const EditorState& state, const StateChange& change) {
  const Team* team = state.scene.place.team;
  team_name_->setText(team == nullptr ? QString() : FromCodePage(team->display_name));
  team_name_->setAccessibleDescription(team_name_->text());
  ShowVisible(state.scene.is_grid_shown);
  ShowTints();
  ShowTexts(change);
  ShowMarks(state, change);
}

void RosterFrame::ShowVisible(bool shown) {
  if (!shown) {
    // A hidden widget that kept the focus would still receive keys.
    QWidget* focused = window()->focusWidget();
    if (isAncestorOf(focused)) focused->clearFocus();
  }
  setVisible(shown);
}

void RosterFrame::ShowTexts(const StateChange& change) {
  for (const CellChange& part : change.texts) {
    RosterBox& box = BoxAt(part.cell);
    const QString shown = FromCodePage(part.after);
    if (box.text() != shown) box.ShowText(shown);
  }
  if (change.picked_into) BoxAt(*change.picked_into).SelectForTyping();
  // A text that did not change has no selection yet; typing should replace it, as in a new visit.
  RosterBox* focused = change.loaded ? FocusedBox() : nullptr;
  if (focused != nullptr) focused->BeginVisit();
}

void RosterFrame::ShowMarks(const EditorState& state, const StateChange& change) {
  const GridMarks& marks = state.marks;
  // Most cells have no mark and had none; this runs with every key.
  const auto concerned = marks.marked() | std::exchange(marked_, marks.marked());
  for (const Cell cell : kAllCells) {
    if (!concerned.test(IndexOf(cell))) continue;
    if (marks.At(cell) != BoxAt(cell).mark()) ShowMark(state, cell);
  }
  // The reason depends on the text as well, be the mark the same.
  for (const CellChange& part : change.texts) {
    if (marks.At(part.cell).is_lossy) ShowMark(state, part.cell);
  }
  save_->SetFilled(marks.modified_count() > 0);
  save_->setAccessibleDescription(SummaryOf(marks));
  undo_->setEnabled(state.can_undo);
  redo_->setEnabled(state.can_redo);
}

void RosterFrame::ShowMark(const EditorState& state, Cell cell) {
  RosterBox& box = BoxAt(cell);
  // A tip that came by F8 has no pointer that leaves.
  if (QToolTip::isVisible() && QToolTip::text() == box.toolTip()) QToolTip::hideText();
  box.ShowMark(state.marks.At(cell), TipOf(state, cell));
}

void RosterFrame::ShowTints() {
  using enum RosterBox::Tint;
  const EditorState& state = editor_.state();
  const TintedRows rows{focus_row_.value_or(kNoRow),
                        state.layout == Layout::kWide ? state.stance_row : kNoRow};
  if (rows == std::exchange(tinted_rows_, rows)) return;
  for (const Cell cell : kAllCells) {
    BoxAt(cell).SetTint(cell.row == rows.focus    ? kFocusRow
                        : cell.row == rows.stance ? kStanceRow
                                                  : kNone);
  }
}

std::optional<Cell> RosterFrame::FocusedCell() const {
  const RosterBox* focused = FocusedBox();
  return focused == nullptr ? std::nullopt : std::optional(focused->cell());
}

RosterBox* RosterFrame::FocusedBox() const {
  QWidget* focused = window()->focusWidget();
  return focused != nullptr && isAncestorOf(focused) ? qobject_cast<RosterBox*>(focused) : nullptr;
}

void RosterFrame::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor color = theme::ShadesOf(palette()).header_band;
  for (const BlockLayout& layout : kBlockLayouts) {
    const QRect band = (HeaderRectOf(layout, 0) | HeaderRectOf(layout, layout.lefts.size() - 1))
                           .adjusted(0, kHeaderGap, 0, 1);  // to the first row's line
    FrameSnapped(painter, band, 1, color, color);
  }
}

void RosterFrame::AddHeaders(const BlockLayout& layout) {
  constexpr int kPixels = 11;
  for (std::size_t place = 0; place < layout.block.columns.size(); ++place) {
    const BlockColumn& column = layout.block.columns.at(place);
    auto* label = new QLabel(FromCodePage(column.caption), this);
    label->setObjectName(QString("Label4(%1)").arg(layout.first_header + static_cast<int>(place)));
    label->setAccessibleName(FromCodePage(column.meaning));
    QString help = FromCodePage(AcceptedTexts(column.column));
    if (column.column == Column::kName) help += '\n' + players_->KeysText();
    if (IsFeature(column.column)) {
      help += "; click a box to pick from pictures\nLeaf through them: Page Up, Page Down";
    }
    label->setToolTip(FromCodePage(column.meaning) + ", " + help);
    label->setAccessibleDescription(help);
    label->setGeometry(HeaderRectOf(layout, place));
    label->setFont(theme::Font(kPixels, QFont::DemiBold));
    label->setContentsMargins(0, kHeaderGap, 0, 0);
    label->setForegroundRole(QPalette::Shadow);
    if (column.column == Column::kName) {
      label->setIndent(5);
    } else {
      label->setAlignment(Qt::AlignCenter);
    }
  }
}

void RosterFrame::AddBox(Cell cell) {
  auto* box = new RosterBox(cell, code_page_, this);
  boxes_.at(IndexOf(cell)) = box;
  box->setText(FromCodePage(editor_.state().grid.Text(cell)));
  connect(box, &RosterBox::textChanged, this, [this, box, cell] {
    // Not the signal's text, from which the box may have taken line breaks by now.
    editor_.Type(cell, ToCodePage(box->text()));
  });
  connect(box, &RosterBox::Entered, this, [this, cell] {
    editor_.EndVisit();
    focus_row_ = cell.row;
    ShowTints();
  });
  connect(box, &RosterBox::Left, this, [this] {
    focus_row_.reset();
    ShowTints();
  });
  connect(box, &RosterBox::Visited, this, [this, cell] { emit CellVisited(cell); });
  connect(box, &RosterBox::BlockPasted, this,
          [this, cell](const std::string& block) { editor_.PasteBlock(cell, block); });
  connect(box, &RosterBox::RowStepRequested, this, [this, cell](int rows) { StepRow(cell, rows); });
  connect(box, &RosterBox::MenuOpens, this, [this] { players_->MenuOpens(); });
  connect(box, &RosterBox::MenuCloses, this, [this] { players_->MenuCloses(); });
  connect(box, &RosterBox::LeafRequested, this,
          [this, cell](int pictures) { LeafPictures(editor_, cell, pictures); });
}

void RosterFrame::AddTeamNameAndSave() {
  constexpr int kNamePixels = 17;
  constexpr int kSavePixels = 12;
  team_name_ = new QLabel(this);
  team_name_->setObjectName("Label4(0)");
  team_name_->setAccessibleName("team");
  team_name_->setGeometry(RectFromTwips(0, 60, 4140, 375));
  team_name_->setFont(theme::Font(kNamePixels, QFont::Bold));

  save_ = new FilledButton("SAVE", this);
  save_->setObjectName("Command1");
  save_->setGeometry(RectFromTwips(4200, 60, 2295, 375));
  save_->setFont(theme::Font(kSavePixels, QFont::Bold));
  connect(save_, &QPushButton::clicked, this, &RosterFrame::SaveRequested);
  connect(new QShortcut(Qt::CTRL | Qt::Key_S, this), &QShortcut::activated, this,
          &RosterFrame::SaveRequested);
}

void RosterFrame::AddKeys() {
  const auto add = [this](const QString& caption, const QList<QKeySequence>& keys, auto run) {
    auto* action = new QAction(caption, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
    // Another team can be taken back while no grid is shown.
    window()->addAction(action);
    return action;
  };
  // The frame is disabled while the help covers it.
  undo_ = add("&Undo", {Qt::CTRL | Qt::Key_Z}, [this] {
    if (isEnabled()) GoTo(editor_.Undo());
  });
  redo_ = add("&Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}, [this] {
    if (isEnabled()) GoTo(editor_.Redo());
  });
  connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this,
          [this] { GoToLossy(false); });
  connect(new QShortcut(Qt::SHIFT | Qt::Key_F8, this), &QShortcut::activated, this,
          [this] { GoToLossy(true); });
  players_ = new PlayerCommands(editor_, *this, [this] { return FocusedCell(); });
  connect(players_, &PlayerCommands::Moved, this,
          [this](Cell cell) { BoxAt(cell).setFocus(Qt::OtherFocusReason); });
}

void RosterFrame::GoTo(std::optional<Cell> cell) {
  // A hidden box that had the focus would take keys.
  if (!cell || !editor_.state().scene.is_grid_shown) return;
  RosterBox& box = BoxAt(*cell);
  box.setFocus(Qt::OtherFocusReason);
  // It may have had the focus, and be out of view.
  box.selectAll();
  emit CellVisited(*cell);
}

void RosterFrame::GoToLossy(bool backwards) {
  const std::optional<Cell> cell = editor_.state().marks.NextLossy(FocusedCell(), backwards);
  GoTo(cell);
  if (!cell) return;
  // With the keyboard there is no pointer to rest on the box.
  RosterBox& box = BoxAt(*cell);
  QToolTip::showText(box.mapToGlobal(box.rect().bottomLeft()), box.toolTip(), &box);
}

void RosterFrame::StepRow(Cell from, int rows) {
  const int row = from.row + rows;
  if (row < 0 || row >= kSlotCount) return;
  // The column at the same place, which may be another one in the other block.
  const std::size_t place = BlockOf(from.row).PlaceOf(from.column).value();
  BoxAt({BlockOf(row).columns.at(place).column, row}).setFocus(Qt::OtherFocusReason);
}

}  // namespace morlek

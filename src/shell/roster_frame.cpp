#include "shell/roster_frame.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QShortcut>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/code_page_text.h"
#include "shell/focus_ring.h"
#include "shell/mark_text.h"
#include "shell/roster_box.h"
#include "team/accepted_texts.h"
#include "ui/filled_button.h"
#include "ui/snapped_lines.h"
#include "ui/theme.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kBatterHeaderTop = 480;
constexpr int kBatterTop = 840;
constexpr int kPitcherHeaderTop = 5400;
constexpr int kPitcherTop = 5760;
constexpr int kRowStep = 300;
constexpr int kBoxHeight = 315;  // neighbours share their border line

/// Logical pixels above the band of a block's headers that stay free, so that the blocks are apart.
constexpr int kHeaderGap = 4;

constexpr int kFirstBatterHeader = 1;  // 0 is the team name
constexpr int kFirstPitcherHeader = kFirstBatterHeader + kColumnCount;

int TopOfRow(int row) {
  return IsPitcher(row) ? kPitcherTop + kRowStep * (row - kBatterCount)
                        : kBatterTop + kRowStep * row;
}

}  // namespace

RosterFrame::RosterFrame(RosterDocument& document, QWidget* parent)
    : QFrame(parent), document_(document) {
  setObjectName("Frame1");
  setAccessibleName("roster");
  setGeometry(RectFromTwips(60, 720, 6555, 9015));
  AddHeaders(kBatterColumns, kFirstBatterHeader, kBatterHeaderTop);
  AddHeaders(kPitcherColumns, kFirstPitcherHeader, kPitcherHeaderTop);
  for (int row = 0; row < kSlotCount; ++row) AddRow(row);
  AddTeamNameAndSave();
  AddKeys();
  new FocusRing(this);

  for (const Cell cell : kAllCells) BoxAt(cell).setText(FromCodePage(document_.grid().Text(cell)));
  subscription_ = document_.Subscribe([this](const GridChange& change) { Follow(change); });
}

void RosterFrame::Follow(const GridChange& change) {
  for (const CellChange& part : change) {
    RosterBox& box = BoxAt(part.cell);
    const QString shown = FromCodePage(part.after);
    if (box.text() != shown) box.ShowText(shown);
  }
}

void RosterFrame::SelectForTyping(Cell cell) { BoxAt(cell).SelectForTyping(); }

void RosterFrame::BeginVisit() {
  if (RosterBox* box = FocusedBox()) box->BeginVisit();
}

void RosterFrame::ShowMarks(const GridMarks& marks) {
  const GridMarks before = std::exchange(marks_, marks);
  for (const Cell cell : kAllCells) {
    // Most cells have no mark and had none; this comes with every key.
    if (!marks.At(cell).is_marked() && !before.At(cell).is_marked()) continue;
    BoxAt(cell).ShowMark(marks.At(cell), TipOf(marks, cell));
  }
  save_->SetDotted(marks.unsaved_count() > 0);
  save_->setAccessibleDescription(SummaryOf(marks));
  undo_->setEnabled(document_.can_undo());
  redo_->setEnabled(document_.can_redo());
}

void RosterFrame::ShowStanceRow(std::optional<int> row) {
  TintRow(std::exchange(stance_row_, row));
  TintRow(row);
}

void RosterFrame::TintRow(std::optional<int> row) {
  if (!row) return;
  using enum RosterBox::Tint;
  const RosterBox::Tint tint = row == stance_row_  ? kStanceRow
                               : row == focus_row_ ? kFocusRow
                                                   : kNone;
  for (const GridColumn& column : ColumnsOfRow(*row)) BoxAt({column.column, *row}).SetTint(tint);
}

RosterBox* RosterFrame::FocusedBox() const {
  QWidget* focused = window()->focusWidget();
  return focused != nullptr && isAncestorOf(focused) ? qobject_cast<RosterBox*>(focused) : nullptr;
}

void RosterFrame::SetTeamName(std::string_view display_name) {
  team_name_->setText(FromCodePage(display_name));
  team_name_->setAccessibleDescription(team_name_->text());
}

bool RosterFrame::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::EnabledChange:
      emit ReachChanged(!isHidden() && isEnabled());
      break;
    default:
      break;
  }
  return QFrame::event(event);
}

void RosterFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QColor color = theme::ShadesOf(palette()).header_band;
  for (const auto& [columns, top] : {std::pair(&kBatterColumns, kBatterHeaderTop),
                                     std::pair(&kPitcherColumns, kPitcherHeaderTop)}) {
    const int left = columns->front().left;
    const int right = columns->back().left + columns->back().width;
    const QRect band = RectFromTwips(left, top, right - left, kBatterTop - kBatterHeaderTop)
                           .adjusted(0, kHeaderGap, 0, 1);  // to the first row's line
    FrameSnapped(painter, band, 1, color, color);
  }
}

void RosterFrame::AddHeaders(const BlockColumns& columns, int first_index, int top) {
  constexpr int kPixels = 11;
  int index = first_index;
  for (const GridColumn& column : columns) {
    auto* label = new QLabel(FromCodePage(column.caption), this);
    label->setObjectName(QString("Label4(%1)").arg(index));
    label->setAccessibleName(FromCodePage(column.meaning));
    const std::string accepted = AcceptedTexts(column.column, first_index == kFirstPitcherHeader);
    label->setToolTip(FromCodePage(std::string(column.meaning) + ", " + accepted));
    label->setAccessibleDescription(FromCodePage(accepted));
    label->setGeometry(
        RectFromTwips(column.left, top, column.width, kBatterTop - kBatterHeaderTop));
    label->setFont(theme::Font(kPixels, QFont::DemiBold));
    label->setContentsMargins(0, kHeaderGap, 0, 0);
    label->setForegroundRole(QPalette::Shadow);
    if (column.column == Column::kText1) {
      label->setIndent(5);
    } else {
      label->setAlignment(Qt::AlignCenter);
    }
    ++index;
  }
}

void RosterFrame::AddRow(int row) {
  for (const GridColumn& column : ColumnsOfRow(row)) {
    const Cell cell{column.column, row};
    auto* box = new RosterBox(column, row, code_page_, this);
    box->setGeometry(RectFromTwips(column.left, TopOfRow(row), column.width, kBoxHeight));
    boxes_.at(IndexOf(cell)) = box;
    connect(box, &RosterBox::textChanged, this, [this, box, cell] {
      // Not the signal's text, from which the box may have taken line breaks by now.
      document_.Type(cell, ToCodePage(box->text()));
    });
    connect(box, &RosterBox::Entered, this, [this, cell] {
      document_.EndVisit();
      TintRow(std::exchange(focus_row_, cell.row));
      TintRow(cell.row);
    });
    connect(box, &RosterBox::Left, this, [this] { TintRow(std::exchange(focus_row_, {})); });
    connect(box, &RosterBox::Visited, this, [this, cell] { emit CellVisited(cell); });
    connect(box, &RosterBox::BlockPasted, this,
            [this, cell](const std::string& block) { emit BlockPasted(cell, block); });
    connect(box, &RosterBox::RowStepRequested, this,
            [this, cell](int rows) { StepRow(cell, rows); });
  }
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
  save_->setAccessibleName("SAVE");
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
    action->setEnabled(false);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
    return action;
  };
  undo_ = add("&Undo", {Qt::CTRL | Qt::Key_Z}, [this] { FollowHistory(document_.Undo()); });
  redo_ = add("&Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
              [this] { FollowHistory(document_.Redo()); });
  connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this,
          [this] { GoToUnkept(false); });
  connect(new QShortcut(Qt::SHIFT | Qt::Key_F8, this), &QShortcut::activated, this,
          [this] { GoToUnkept(true); });
}

void RosterFrame::GoTo(Cell cell) {
  RosterBox& box = BoxAt(cell);
  box.setFocus(Qt::OtherFocusReason);
  // It may have had the focus, and be out of view.
  box.selectAll();
  emit CellVisited(cell);
}

void RosterFrame::FollowHistory(std::optional<Cell> changed) {
  if (changed) GoTo(*changed);
}

void RosterFrame::GoToUnkept(bool backwards) {
  const RosterBox* box = FocusedBox();
  std::optional<Cell> from;
  if (box != nullptr) from = {box->column(), box->row()};
  const std::optional<Cell> cell = marks_.NextUnkept(from, backwards);
  if (!cell) return;
  GoTo(*cell);
  // Who comes by keys has no pointer to rest on the box.
  RosterBox& unkept = BoxAt(*cell);
  QToolTip::showText(unkept.mapToGlobal(unkept.rect().bottomLeft()), unkept.toolTip(), &unkept);
}

void RosterFrame::StepRow(Cell from, int rows) {
  const int row = from.row + rows;
  if (row < 0 || row >= kSlotCount) return;
  // The column that stands in the same place, which from block to block may be another array.
  const BlockColumns& columns = ColumnsOfRow(from.row);
  const auto place = std::ranges::find(columns, from.column, &GridColumn::column);
  const Column target = ColumnsOfRow(row)[static_cast<std::size_t>(place - columns.begin())].column;
  BoxAt({target, row}).setFocus(Qt::OtherFocusReason);
}

}  // namespace morlek

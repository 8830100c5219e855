#include "shell/roster_frame.h"

#include <QEvent>
#include <QLabel>
#include <QShortcut>
#include <algorithm>

#include "shell/code_page_text.h"
#include "shell/filled_button.h"
#include "shell/roster_box.h"
#include "shell/theme.h"
#include "shell/twips.h"

namespace morlek {
namespace {

constexpr int kBatterHeaderTop = 480;
constexpr int kBatterTop = 840;
constexpr int kPitcherHeaderTop = 5400;
constexpr int kPitcherTop = 5760;
constexpr int kRowStep = 300;
constexpr int kBoxHeight = 315;  // neighbours share their border line

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

  for (const Cell cell : kAllCells) {
    boxes_.at(IndexOf(cell))->setText(FromCodePage(document_.grid().Text(cell)));
  }
  subscription_ = document_.Subscribe([this](const GridChange& change) { Follow(change); });
}

void RosterFrame::Follow(const GridChange& change) {
  for (const CellChange& part : change) {
    RosterBox& box = *boxes_.at(IndexOf(part.cell));
    const QString shown = FromCodePage(part.after);
    if (box.text() != shown) box.ShowText(shown);
  }
}

void RosterFrame::SelectForTyping(Cell cell) {
  boxes_.at(IndexOf(cell))->SelectForTyping();
}

void RosterFrame::SetTeamName(std::string_view display_name) {
  team_name_->setText(FromCodePage(display_name));
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

void RosterFrame::AddHeaders(const BlockColumns& columns, int first_index, int top) {
  constexpr int kPixels = 11;
  QPalette colors = palette();
  colors.setColor(QPalette::Window, theme::kHeaderBand);
  colors.setColor(QPalette::WindowText, theme::kHeaderText);
  int index = first_index;
  for (const GridColumn& column : columns) {
    auto* label = new QLabel(FromCodePage(column.caption), this);
    label->setObjectName(QString("Label4(%1)").arg(index));
    label->setAccessibleName(FromCodePage(column.meaning));
    label->setToolTip(FromCodePage(column.meaning));
    label->setGeometry(
        RectFromTwips(column.left, top, column.width, kBatterTop - kBatterHeaderTop));
    label->setFont(theme::Font(kPixels, QFont::DemiBold));
    label->setAutoFillBackground(true);
    label->setPalette(colors);
    if (column.column == Column::kText1) {
      label->setIndent(4);
    } else {
      label->setAlignment(Qt::AlignCenter);
    }
    ++index;
  }
}

void RosterFrame::AddRow(int row) {
  for (const GridColumn& column : ColumnsOfRow(row)) {
    const Cell cell{column.column, row};
    auto* box = new RosterBox(column, row, this);
    box->setGeometry(RectFromTwips(column.left, TopOfRow(row), column.width, kBoxHeight));
    boxes_.at(IndexOf(cell)) = box;
    connect(box, &RosterBox::textChanged, this, [this, box, cell] {
      // Not the signal's text, which the box may have corrected by now.
      document_.Type(cell, ToCodePage(box->text()));
    });
    connect(box, &RosterBox::Visited, this, [this, cell] { emit CellVisited(cell); });
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

  auto* save = new FilledButton("SAVE", this);
  save->setObjectName("Command1");
  save->setAccessibleName("SAVE");
  save->setGeometry(RectFromTwips(4200, 60, 2295, 375));
  save->setFont(theme::Font(kSavePixels, QFont::Bold));
  connect(save, &QPushButton::clicked, this, &RosterFrame::SaveRequested);
  connect(new QShortcut(Qt::CTRL | Qt::Key_S, this), &QShortcut::activated, this,
          &RosterFrame::SaveRequested);
}

void RosterFrame::StepRow(Cell from, int rows) {
  const int row = from.row + rows;
  if (row < 0 || row >= kSlotCount) return;
  // The column that stands in the same place, which from block to block may be another array.
  const BlockColumns& columns = ColumnsOfRow(from.row);
  const auto place = std::ranges::find(columns, from.column, &GridColumn::column);
  const Column target = ColumnsOfRow(row)[static_cast<std::size_t>(place - columns.begin())].column;
  boxes_.at(IndexOf({target, row}))->setFocus(Qt::OtherFocusReason);
}

}  // namespace morlek

#include "shell/roster_frame.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "shell/code_page_text.h"
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

constexpr int kFirstBatterHeader = 1;
constexpr int kFirstPitcherHeader = 15;

int TopOfRow(int row) {
  return IsPitcher(row) ? kPitcherTop + kRowStep * (row - kBatterCount)
                        : kBatterTop + kRowStep * row;
}

std::size_t Index(Column column) { return static_cast<std::size_t>(column) - 1; }

QPalette WithColor(QPalette palette, QPalette::ColorRole role, const QColor& color) {
  palette.setColor(role, color);
  return palette;
}

}  // namespace

RosterFrame::RosterFrame(RosterGrid& grid, QWidget* parent) : QFrame(parent), grid_(grid) {
  setObjectName("Frame1");
  setAccessibleName("roster");
  setGeometry(RectFromTwips(60, 720, 6555, 9015));
}

RosterFrame::~RosterFrame() { grid_.SetListener(nullptr); }

void RosterFrame::Fill() {
  AddHeaders(kBatterColumns, kFirstBatterHeader, kBatterHeaderTop);
  AddHeaders(kPitcherColumns, kFirstPitcherHeader, kPitcherHeaderTop);
  for (int row = 0; row < kSlotCount; ++row) AddRow(row);
  AddTeamNameAndSave();

  grid_.SetListener([this](Column column, int row) {
    RosterBox* box = boxes_.at(static_cast<std::size_t>(row)).at(Index(column));
    const QString shown = FromCodePage(grid_.Text(column, row));
    if (box->text() != shown) box->setText(shown);
    emit RowChanged(row);
  });
}

void RosterFrame::SetTeamName(std::string_view display_name) {
  team_name_->setText(FromCodePage(display_name));
}

void RosterFrame::AddHeaders(const BlockColumns& columns, int first_index, int top) {
  constexpr int kPixels = 11;
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
    label->setPalette(WithColor(WithColor(palette(), QPalette::Window, theme::kHeaderBand),
                                QPalette::WindowText, theme::kHeaderText));
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
    auto* box = new RosterBox(column, row, this);
    box->setGeometry(RectFromTwips(column.left, TopOfRow(row), column.width, kBoxHeight));
    boxes_.at(static_cast<std::size_t>(row)).at(Index(column.column)) = box;
    connect(box, &RosterBox::textChanged, this, [this, box] {
      // Not the signal's text, which the box may have corrected by now.
      const std::string typed = ToCodePage(box->text());
      if (grid_.Text(box->column(), box->row()) != typed) {
        grid_.SetText(box->column(), box->row(), typed);
      }
    });
    connect(box, &RosterBox::Visited, this,
            [this, box] { emit CellVisited(box->column(), box->row()); });
    connect(box, &RosterBox::RowStepRequested, this,
            [this, box](int rows) { StepRow(*box, rows); });
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

  auto* save = new QPushButton("SAVE", this);
  save->setObjectName("Command1");
  save->setAccessibleName("SAVE");
  save->setGeometry(RectFromTwips(4200, 60, 2295, 375));
  save->setFont(theme::Font(kSavePixels, QFont::Bold));
  save->setPalette(WithColor(WithColor(palette(), QPalette::Button, theme::kAccent),
                             QPalette::ButtonText, theme::kBase));
  connect(save, &QPushButton::clicked, this, &RosterFrame::SaveRequested);
  connect(new QShortcut(Qt::CTRL | Qt::Key_S, this), &QShortcut::activated, this,
          &RosterFrame::SaveRequested);
}

void RosterFrame::StepRow(const RosterBox& from, int rows) {
  const int row = from.row() + rows;
  if (row < 0 || row >= kSlotCount) return;
  // The column that stands in the same place, which from block to block may be another array.
  const BlockColumns& columns = ColumnsOfRow(from.row());
  const auto place = std::ranges::find(columns, from.column(), &GridColumn::column);
  const Column target = ColumnsOfRow(row)[static_cast<std::size_t>(place - columns.begin())].column;
  boxes_.at(static_cast<std::size_t>(row)).at(Index(target))->setFocus(Qt::OtherFocusReason);
}

}  // namespace morlek

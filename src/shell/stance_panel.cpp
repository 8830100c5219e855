#include "shell/stance_panel.h"

#include <algorithm>
#include <optional>

#include "codecs/appearance_codec.h"
#include "image/team_directory.h"
#include "shell/club_looks.h"
#include "shell/code_page_text.h"
#include "shell/content_area.h"
#include "shell/stance_chooser.h"
#include "shell/stance_view.h"
#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kWidth = 222;
constexpr QRect kViewArea(8, 546, 206, 103);
constexpr QRect kViewAreaBelowLegs(8, 246, 206, 403);  // of which there are few

constexpr std::array<Column, 3> kFeatures = {Column::kText12, Column::kText13, Column::kText14};

constexpr std::array<ChooserKind, 3> kKinds = {{
    {StancePiece::kFace, "Frame2", "Picture1", "Label1", "Face",
     "This will edit the skin color and facial features of a player but not hair color. Click to "
     "make selection."},
    {StancePiece::kBody, "Frame3", "Picture2", "Label2", "Body", ""},
    {StancePiece::kLegs, "Frame4", "Picture3", "Label5", "Legs", ""},
}};

/// Where the player is shown below a chooser.
QRect ViewAreaBelow(StancePiece piece) {
  return piece == StancePiece::kLegs ? kViewAreaBelowLegs : kViewArea;
}

}  // namespace

StancePanel::StancePanel(RosterDocument& document, QWidget* parent)
    : QWidget(parent), document_(document) {
  setObjectName("StancePanel");
  setAccessibleName("batting stance choosers");
  setGeometry(FromTwips(6660), 0, kWidth, kContentHeight);
  for (std::size_t place = 0; place < kKinds.size(); ++place) AddChooser(place);
  view_ = new StanceView(this);
  view_->setGeometry(kViewArea);
  ShowStanceRow();
  subscription_ = document_.Subscribe([this](const GridChange& change) {
    const auto is_in_stance_row = [this](const CellChange& part) {
      return part.cell.row == stance_row_;
    };
    if (std::ranges::any_of(change, is_in_stance_row)) ShowStanceRow();
  });
}

void StancePanel::Choose(Cell cell) {
  stance_row_ = cell.row;
  for (std::size_t place = 0; place < choosers_.size(); ++place) {
    const bool is_chosen = kFeatures.at(place) == cell.column;
    choosers_.at(place)->setVisible(is_chosen);
    if (is_chosen) view_->setGeometry(ViewAreaBelow(kKinds.at(place).piece));
  }
  ShowStanceRow();
}

void StancePanel::ShowTeam(std::string_view display_name) {
  const auto team = std::ranges::find(kTeamDirectory, display_name, &Team::display_name);
  std::optional<ClubColors> colors;
  if (team != kTeamDirectory.end()) {
    colors = kClubLooks.at(static_cast<std::size_t>(team - kTeamDirectory.begin())).colors;
  }
  view_->ShowClub(colors);
}

void StancePanel::AddChooser(std::size_t place) {
  auto* chooser = new StanceChooser(kKinds.at(place), this);
  chooser->setGeometry(0, 0, kWidth, ViewAreaBelow(kKinds.at(place).piece).top());
  chooser->hide();
  connect(chooser, &StanceChooser::CodePicked, this, [this, place](const QString& code_text) {
    document_.Put({kFeatures.at(place), stance_row_}, ToCodePage(code_text));
    emit Picked({kFeatures.at(place), stance_row_});
  });
  choosers_.at(place) = chooser;
}

void StancePanel::ShowStanceRow() {
  const auto code_of = [this](Column column) {
    return AppearanceByte(document_.grid().Text({column, stance_row_}));
  };
  for (std::size_t place = 0; place < choosers_.size(); ++place) {
    choosers_.at(place)->Mark(code_of(kFeatures.at(place)));
  }
  const auto piece_of = [&](Column column) -> std::optional<int> {
    if (document_.grid().Text({column, stance_row_}).empty()) return std::nullopt;
    return code_of(column).value_or(kUnknownCode);
  };
  const auto text_of = [this](Column column) {
    return FromCodePage(document_.grid().Text({column, stance_row_}));
  };
  view_->ShowPlayer(
      {.name = text_of(Column::kText1),
       .number = text_of(Column::kText3),
       .position = text_of(Column::kText2),
       .codes = {piece_of(kFeatures[0]), piece_of(kFeatures[1]), piece_of(kFeatures[2])}});
}

}  // namespace morlek

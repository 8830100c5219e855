#include "shell/stance_panel.h"

#include <optional>

#include "codecs/appearance_codec.h"
#include "editor/editor_state.h"
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

constexpr std::array<ChooserKind, kFeatures.size()> kKinds = {{
    {StancePiece::kFace, "Frame2", "Picture1", "Label1", "Face",
     "This will edit the skin color and facial features of a player but not hair color. Click to "
     "make selection.",
     "skin of the body"},
    {StancePiece::kBody, "Frame3", "Picture2", "Label2", "Body", "", "skin of the face"},
    {StancePiece::kLegs, "Frame4", "Picture3", "Label5", "Legs", "", nullptr},
}};

/// Where the player is shown below a chooser.
QRect ViewAreaBelow(StancePiece piece) {
  return piece == StancePiece::kLegs ? kViewAreaBelowLegs : kViewArea;
}

}  // namespace

StancePanel::StancePanel(QWidget* parent) : QWidget(parent) {
  setObjectName("StancePanel");
  setAccessibleName("batting stance choosers");
  setGeometry(FromTwips(6660), 0, kWidth, kContentHeight);
  for (std::size_t place = 0; place < kKinds.size(); ++place) AddChooser(place);
  view_ = new StanceView(this);
  view_->setGeometry(kViewArea);
}

void StancePanel::AddChooser(std::size_t place) {
  auto* chooser = new StanceChooser(kKinds.at(place), this);
  chooser->setGeometry(0, 0, kWidth, ViewAreaBelow(kKinds.at(place).piece).top());
  chooser->hide();
  connect(chooser, &StanceChooser::CodePicked, this, [this, place](const QString& code_text) {
    emit Picked(kFeatures.at(place), ToCodePage(code_text));
  });
  connect(chooser, &StanceChooser::PointedAt, this, [this, place](std::optional<int> code) {
    view_->Try(code ? std::optional(TriedPicture{kKinds.at(place).piece, *code}) : std::nullopt);
  });
  choosers_.at(place) = chooser;
}

void StancePanel::Show(const EditorState& state) {
  const auto text_of = [&state](Column column) -> const std::string& {
    return state.grid.Text({column, state.stance_row});
  };
  std::array<std::optional<int>, kFeatures.size()> pieces;
  for (std::size_t place = 0; place < choosers_.size(); ++place) {
    const Column column = kFeatures.at(place);
    const bool is_chosen = state.chooser == column;
    choosers_.at(place)->setVisible(is_chosen);
    if (is_chosen) view_->setGeometry(ViewAreaBelow(kKinds.at(place).piece));
    const std::optional<int> code = AppearanceByte(text_of(column));
    choosers_.at(place)->Mark(code);
    if (!text_of(column).empty()) pieces.at(place) = code.value_or(kUnknownCode);
  }
  choosers_[0]->ShowFitting(pieces[1]);
  choosers_[1]->ShowFitting(pieces[0]);
  // A pointer that is left at rest does not hide what a step has changed.
  view_->Try({});
  const Team* team = state.scene.place.team;
  view_->ShowPlayer({.name = FromCodePage(text_of(Column::kName)),
                     .number = FromCodePage(text_of(Column::kUniformNumber)),
                     .position = FromCodePage(text_of(Column::kPosition)),
                     .codes = {pieces[0], pieces[1], pieces[2]},
                     .club = team == nullptr ? std::nullopt : std::optional(LookOf(*team).colors)});
}

}  // namespace morlek

#include "shell/team_toolbar.h"

#include <QPainter>
#include <QShortcut>
#include <utility>

#include "editor/editor_state.h"
#include "shell/code_page_text.h"
#include "shell/team_badges.h"
#include "ui/marked_button.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr int kTeams = kTeamDirectory.size();
constexpr int kButtonsInRow = 14;
constexpr int kRows = (kTeams + kButtonsInRow - 1) / kButtonsInRow;
constexpr int kButtonWidth = 31;
constexpr int kButtonHeight = 23;

/// A button that is all picture.
class TeamButton : public MarkedButton {
 public:
  TeamButton(const Team& team, const QIcon& badge, QWidget* parent) : MarkedButton(parent) {
    const QString key = FromCodePage(team.key);
    setObjectName(key);
    setToolTip(key);
    setAccessibleName(FromCodePage(team.display_name));
    setIcon(badge);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int kGap = 3;
    const theme::Shades& shades = theme::ShadesOf(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (is_marked() || underMouse() || isDown()) {
      const bool is_strong = is_marked() || isDown();
      painter.setPen(QPen(is_strong ? shades.accent : shades.hover_ring, is_strong ? 2 : 1.5));
      painter.setBrush(shades.hover);
      painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    }
    const QRect badge = rect().adjusted(kGap, kGap, -kGap, -kGap);
    // Many clubs wear colours that a dark window would swallow.
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.badge_rim);
    painter.drawRoundedRect(badge.adjusted(-1, -1, 1, 1), 4, 4);
    icon().paint(&painter, badge);
  }
};

}  // namespace

TeamToolbar::TeamToolbar(QWidget* parent) : QWidget(parent) {
  setObjectName("Toolbar1");
  setAccessibleName("teams");
  setFixedSize(kButtonsInRow * kButtonWidth, kRows * kButtonHeight);

  const auto* badges = new TeamBadges(this);
  int place = 0;
  for (const Team& team : kTeamDirectory) {
    auto* button = new TeamButton(team, badges->Badge(team), this);
    button->setGeometry(place % kButtonsInRow * kButtonWidth, place / kButtonsInRow * kButtonHeight,
                        kButtonWidth, kButtonHeight);
    connect(button, &QAbstractButton::clicked, this, [this, &team] { emit TeamPicked(team.key); });
    buttons_.push_back(button);
    ++place;
  }

  for (const auto& [key, places] : {std::pair(Qt::Key_PageDown, +1), {Qt::Key_PageUp, -1}}) {
    connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this,
            [this, places = places] { emit StepRequested(places); });
  }
}

void TeamToolbar::Show(const EditorState& state) {
  setVisible(!state.scene.place.image.empty());
  for (const Team& team : kTeamDirectory) {
    buttons_.at(PlaceOf(team))->SetMarked(state.is_loaded && state.scene.place.team == &team);
  }
}

}  // namespace morlek

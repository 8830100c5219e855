#include "shell/team_toolbar.h"

#include <QPainter>
#include <QPainterPath>
#include <QShortcut>
#include <utility>

#include "editor/editor_state.h"
#include "shell/club_looks.h"
#include "shell/code_page_text.h"
#include "ui/marked_button.h"
#include "ui/painted_icon.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr int kTeams = kTeamDirectory.size();
constexpr int kButtonsInRow = 14;
constexpr int kRows = 2;
static_assert(kRows * kButtonsInRow == kTeams);
constexpr int kButtonWidth = 31;
constexpr int kButtonHeight = 23;

/// A badge with a club's letters on its two colours.
void PaintBadge(QPainter& painter, const QRectF& target, const ClubLook& look) {
  constexpr qreal kTrimPart = 0.16;
  constexpr qreal kLetterPart = 0.56;
  QPainterPath outline;
  outline.addRoundedRect(target, target.height() * 0.2, target.height() * 0.2);
  painter.fillPath(outline, look.colors.main);

  QRectF trim = target;
  trim.setTop(target.bottom() - target.height() * kTrimPart);
  painter.setClipPath(outline, Qt::IntersectClip);
  painter.fillRect(trim, look.colors.trim);
  painter.setClipping(false);

  painter.setPen(QPen(look.colors.main.darker(130), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(outline);

  QRectF letters = target;
  letters.setBottom(trim.top() + 1);
  painter.setPen(Qt::white);
  painter.setFont(theme::Font(qRound(target.height() * kLetterPart), QFont::Bold));
  painter.drawText(letters, Qt::AlignCenter, look.letters);
}

/// A button that shows only its badge.
class TeamButton : public MarkedButton {
 public:
  TeamButton(const Team& team, QWidget* parent) : MarkedButton(parent) {
    const QString key = FromCodePage(team.key);
    setObjectName(key);
    setToolTip(key);
    setAccessibleName(FromCodePage(team.display_name));
    setIcon(MakePaintedIcon([&look = LookOf(team)](QPainter& painter, const QRectF& target) {
      PaintBadge(painter, target, look);
    }));
    setFocusPolicy(Qt::NoFocus);
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
    // Many clubs have colours that can hardly be seen on a dark window.
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

  // The form's name for the badges as a whole.
  (new QObject(this))->setObjectName("ImageList1");
  int place = 0;
  for (const Team& team : kTeamDirectory) {
    auto* button = new TeamButton(team, this);
    button->setGeometry(place % kButtonsInRow * kButtonWidth, place / kButtonsInRow * kButtonHeight,
                        kButtonWidth, kButtonHeight);
    connect(button, &QAbstractButton::clicked, this, [this, &team] { emit TeamPicked(team.key); });
    buttons_.push_back(button);
    ++place;
  }

  for (const auto& [key, places] : {std::pair(Qt::Key_PageDown, +1), {Qt::Key_PageUp, -1}}) {
    connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, this,
            [this, step = places] { emit StepRequested(step); });
  }
}

void TeamToolbar::Show(const EditorState& state) {
  setVisible(!state.scene.place.image.empty());
  if (state.loaded == std::exchange(loaded_, state.loaded)) return;
  for (const Team& team : kTeamDirectory) {
    buttons_.at(PlaceOf(team))->SetMarked(loaded_ == &team);
  }
}

}  // namespace morlek

#include "shell/team_toolbar.h"

#include <QAbstractButton>
#include <QPainter>
#include <QShortcut>

#include "image/team_directory.h"
#include "shell/code_page_text.h"
#include "shell/team_badges.h"
#include "shell/theme.h"

namespace morlek {
namespace {

constexpr int kTeams = kTeamDirectory.size();
constexpr int kButtonsInRow = 14;
constexpr int kRows = (kTeams + kButtonsInRow - 1) / kButtonsInRow;
constexpr int kButtonWidth = 31;
constexpr int kButtonHeight = 23;

/// A button that is all picture.
class TeamButton : public QAbstractButton {
 public:
  TeamButton(const Team& team, const QIcon& badge, QWidget* parent) : QAbstractButton(parent) {
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
    constexpr int kGap = 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || isDown()) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(isDown() ? theme::kAccent : theme::kHover);
      painter.drawRoundedRect(rect(), 4, 4);
    }
    icon().paint(&painter, rect().adjusted(kGap, kGap, -kGap, -kGap));
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
    auto* button = new TeamButton(team, badges->Badge(team.key), this);
    button->setGeometry(place % kButtonsInRow * kButtonWidth, place / kButtonsInRow * kButtonHeight,
                        kButtonWidth, kButtonHeight);
    connect(button, &QAbstractButton::clicked, this, [this, place] { Pick(place); });
    ++place;
  }

  connect(new QShortcut(Qt::CTRL | Qt::Key_PageDown, this), &QShortcut::activated, this,
          [this] { Pick(picked_ + 1); });
  connect(new QShortcut(Qt::CTRL | Qt::Key_PageUp, this), &QShortcut::activated, this,
          [this] { Pick(picked_ - 1); });
}

void TeamToolbar::Pick(int place) {
  if (place < 0 || place >= kTeams) return;
  picked_ = place;
  emit TeamPicked(kTeamDirectory.at(static_cast<std::size_t>(place)).key);
}

}  // namespace morlek

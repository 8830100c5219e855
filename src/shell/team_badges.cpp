#include "shell/team_badges.h"

#include <QPainter>
#include <QPainterPath>

#include "shell/club_looks.h"
#include "ui/painted_icon.h"
#include "ui/theme.h"

namespace morlek {
namespace {

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

}  // namespace

TeamBadges::TeamBadges(QObject* parent) : QObject(parent) { setObjectName("ImageList1"); }

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): the list is asked as an object.
QIcon TeamBadges::Badge(const Team& team) const {
  return MakePaintedIcon([&look = LookOf(team)](QPainter& painter, const QRectF& target) {
    PaintBadge(painter, target, look);
  });
}

}  // namespace morlek

#include "art/bat_art.h"

#include <QPainter>
#include <cmath>
#include <numbers>

#include "art/shapes.h"

namespace morlek::art {

QPointF BatDirection(qreal angle) {
  const qreal radians = angle * std::numbers::pi / 180;
  return {std::cos(radians), -std::sin(radians)};
}

void PaintBat(QPainter& painter, QPointF knob, qreal angle, qreal scale) {
  const QPointF direction = BatDirection(angle) * scale;
  const auto disc = [&](qreal along, qreal radius) {
    return Disc{knob + direction * along, radius * scale};
  };
  QPainterPath bat = Taper(disc(0, 2.4), disc(24, 2.5));
  bat.addPath(Taper(disc(20, 2.1), disc(36, 4.4)));
  bat.addPath(Taper(disc(36, 4.4), disc(kBatLength - 4.4, 4.4)));
  bat.addPath(Taper(disc(-0.5, 3.2), disc(0.5, 3.2)));
  PaintSolid(painter, bat, kWood, 2.4 * scale);

  const QPainterPath tape = Taper(disc(2, 2.2), disc(15, 2.2));
  PaintTone(painter, tape, kNavyCloth, scale);
}

}  // namespace morlek::art

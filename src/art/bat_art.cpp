#include "art/bat_art.h"

#include <QPainter>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "art/shapes.h"

namespace morlek::art {

QPointF BatDirection(qreal angle) {
  const qreal radians = angle * std::numbers::pi / 180;
  return {std::cos(radians), -std::sin(radians)};
}

QPainterPath BatShape(QPointF knob, QPointF tip, qreal girth) {
  // One side: how far along the way, and how far off it in girths.
  constexpr std::array<QPointF, 10> kSide = {{{0, 0.32},
                                              {0.014, 0.64},
                                              {0.045, 0.66},
                                              {0.09, 0.47},
                                              {0.3, 0.48},
                                              {0.48, 0.66},
                                              {0.66, 0.92},
                                              {0.84, 1},
                                              {0.955, 0.82},
                                              {1, 0.3}}};
  const QPointF way = tip - knob;
  const QPointF across = QPointF(-way.y(), way.x()) * (girth / std::hypot(way.x(), way.y()));
  std::array<QPointF, 2 * kSide.size()> outline;
  for (std::size_t i = 0; i < kSide.size(); ++i) {
    const auto [along, off] = std::pair(kSide.at(i).x(), kSide.at(i).y());
    outline.at(i) = knob + way * along + across * off;
    outline.at(outline.size() - 1 - i) = knob + way * along - across * off;
  }
  return RoundThrough(outline);
}

void PaintBat(QPainter& painter, QPointF knob, qreal angle) {
  const QPointF direction = BatDirection(angle);
  PaintSolid(painter, BatShape(knob - direction * 3.4, knob + direction * kBatLength, 5), kWood,
             2.4);
  PaintTone(painter, Capsule({knob + direction * 3, 2.2}, {knob + direction * 15, 2.2}), kNavyCloth,
            1);
}

}  // namespace morlek::art

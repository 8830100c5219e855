#include <QPainter>
#include <array>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr std::array<QPointF, 2> kEyeCenters = {{{-1.5, 1}, {14, 1}}};

constexpr QColor kPlaster{0xff, 0xf1, 0xd6};
constexpr std::array<QPointF, 8> kFreckles = {
    {{-7, 8}, {-3.4, 10}, {-8, 12}, {0.4, 7.6}, {-4, 13.6}, {15, 8}, {18, 9.6}, {16, 11.6}}};

}  // namespace

void PaintEyes(QPainter& painter, Eyes eyes) {
  const qreal height = eyes == Eyes::kWide ? 5 : eyes == Eyes::kNarrow ? 1.9 : 3.7;
  for (const QPointF& center : kEyeCenters) {
    const QPainterPath white = Ellipse(center, 4.2, height);
    painter.fillPath(white, kWhite);
    painter.save();
    painter.setClipPath(white, Qt::IntersectClip);
    painter.fillPath(Ellipse(center + QPointF(1.5, 0.2), 2.3, 2.8), kInk);
    painter.restore();
    QPainterPath lid(center + QPointF(-4.4, 0.2));
    lid.quadTo(center + QPointF(0, -2.1 * height), center + QPointF(4.4, 0.2));
    PaintLine(painter, lid, kInk, 1.6);
  }
}

void PaintBrows(QPainter& painter, const BrowShape& shape) {
  const std::array<QPointF, 3> back = {
      {{3.2, shape.inner}, {-2, shape.middle}, {-6.6, shape.outer}}};
  const std::array<QPointF, 3> front = {
      {{10.4, shape.inner}, {14.6, shape.middle}, {18.4, shape.outer}}};
  PaintLine(painter, CurveThrough(back), kHair.shade, shape.thickness);
  PaintLine(painter, CurveThrough(front), kHair.shade, shape.thickness);
}

void PaintNose(QPainter& painter, const Tone& skin) {
  constexpr std::array<QPointF, 5> kNose = {
      {{8, 1}, {9.6, 4}, {12.4, 8.6}, {9.6, 10.8}, {5.4, 9.8}}};
  painter.fillPath(Ellipse({8.2, 8}, 4.2, 2.9), skin.shade);
  painter.fillPath(Ellipse({7.6, 7.2}, 3.4, 2.3), skin.light);
  PaintLine(painter, CurveThrough(std::span(kNose).last(4)), skin.shade.darker(165), 1.7);
}

void PaintMark(QPainter& painter, Mark mark, const Tone& skin) {
  switch (mark) {
    case Mark::kNone:
      break;
    case Mark::kFreckles:
      for (const QPointF& spot : kFreckles) {
        painter.fillPath(Ellipse(spot, 1.1, 1.1), skin.shade.darker(125));
      }
      break;
    case Mark::kScar: {
      const QColor color = skin.shade.darker(140);
      PaintLine(painter, Segment({-9.5, 6}, {-3.5, 18}), color, 1.8);
      for (const qreal y : {8.5, 12.0, 15.5}) {
        const qreal x = -9.5 + (y - 6) / 2;
        PaintLine(painter, Segment({x - 2.4, y + 1}, {x + 2.4, y - 1}), color, 1.4);
      }
      break;
    }
    case Mark::kPlaster: {
      const QPainterPath strip = Capsule({{-9.5, 13.5}, 2.8}, {{-2.5, 8.5}, 2.8});
      PaintLine(painter, strip, skin.shade.darker(150), 1.6);
      painter.fillPath(strip, kPlaster);
      painter.fillPath(Ellipse({-6, 11}, 1.8, 1.8), kRed);
      break;
    }
    case Mark::kChew:
      PaintSolid(painter, Ellipse({-10.5, 15.5}, 8.6, 7.4), skin, 3);
      painter.fillPath(Ellipse({-6.5, 10.5}, 8.5, 6.4), skin.light);
      break;
  }
}

}  // namespace morlek::art

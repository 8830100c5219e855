#include <QPainter>
#include <array>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr QColor kPlaster{0xff, 0xf1, 0xd6};
constexpr std::array<QPointF, 8> kFreckles = {
    {{-7, 8}, {-3.4, 10}, {-8, 12}, {0.4, 7.6}, {-4, 13.6}, {15, 8}, {18, 9.6}, {16, 11.6}}};

}  // namespace

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

#include <QPainter>
#include <array>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr QColor kLips{0x8a, 0x35, 0x32};
constexpr QColor kGum{0xf2, 0x86, 0xb4};
constexpr QColor kGumShine{0xfd, 0xd9, 0xe8};
constexpr QColor kStraw{0xf0, 0xcf, 0x5a};

void PaintOpenMouth(QPainter& painter, const QPainterPath& mouth, qreal teeth_height) {
  PaintLine(painter, mouth, kInk, 2.6);
  painter.fillPath(mouth, kLips);
  painter.save();
  painter.setClipPath(mouth, Qt::IntersectClip);
  painter.fillRect(QRectF(-10, 8, 40, teeth_height + 6.5), kWhite);
  painter.restore();
}

void PaintBubble(QPainter& painter) {
  PaintSolid(painter, Ellipse({12.5, 18.5}, 8.6, 8.2), {kGum, kGum.darker(118)}, 3);
  PaintLine(painter, CurveThrough(std::array<QPointF, 3>{{{7, 17}, {8, 14.4}, {10.2, 13}}}),
            kGumShine, 2);
}

}  // namespace

void PaintMouth(QPainter& painter, Mouth mouth, const QColor& lips) {
  switch (mouth) {
    case Mouth::kSmile:
      PaintLine(painter, Bow({0, 15.5}, {8, 22.5}, {15.5, 15}), lips, 2);
      break;
    case Mouth::kFirm:
      PaintLine(painter, Segment({2, 17}, {13.5, 17}), lips, 2);
      break;
    case Mouth::kSmirk:
      PaintLine(painter, Bow({2, 18.4}, {11, 19.4}, {15.5, 13.6}), lips, 2.2);
      break;
    case Mouth::kFrown:
      PaintLine(painter, Bow({1, 19.5}, {8, 13.5}, {14.5, 19}), lips, 2.4);
      break;
    case Mouth::kGrin: {
      QPainterPath grin = Bow({-1, 14.5}, {8, 16.5}, {16, 14});
      grin.quadTo({13.5, 22.5}, {7.5, 22.5});
      grin.quadTo({1, 22}, {-1, 14.5});
      PaintOpenMouth(painter, grin, 8);
      break;
    }
    case Mouth::kShout:
      PaintOpenMouth(painter, Ellipse({8, 18.4}, 5.4, 5.2), 1.4);
      break;
    case Mouth::kGum:
      PaintBubble(painter);
      break;
    case Mouth::kStraw:
      PaintLine(painter, Bow({1.5, 16}, {8, 19.5}, {14, 15.6}), lips, 2);
      PaintLine(painter, Segment({11, 17}, {26.5, 13.5}), kInk, 3.6);
      PaintLine(painter, Segment({11, 17}, {26.5, 13.5}), kStraw, 1.8);
      break;
  }
}

}  // namespace morlek::art

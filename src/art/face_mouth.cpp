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
  QPainterPath line;
  switch (mouth) {
    case Mouth::kSmile:
      line.moveTo(0, 15.5);
      line.quadTo({8, 22.5}, {15.5, 15});
      PaintLine(painter, line, lips, 2);
      break;
    case Mouth::kFirm:
      line.moveTo(2, 17);
      line.lineTo(13.5, 17);
      PaintLine(painter, line, lips, 2);
      break;
    case Mouth::kSmirk:
      line.moveTo(2, 18.4);
      line.quadTo({11, 19.4}, {15.5, 13.6});
      PaintLine(painter, line, lips, 2.2);
      break;
    case Mouth::kFrown:
      line.moveTo(1, 19.5);
      line.quadTo({8, 13.5}, {14.5, 19});
      PaintLine(painter, line, lips, 2.4);
      break;
    case Mouth::kGrin:
      line.moveTo(-1, 14.5);
      line.quadTo({8, 16.5}, {16, 14});
      line.quadTo({13.5, 22.5}, {7.5, 22.5});
      line.quadTo({1, 22}, {-1, 14.5});
      PaintOpenMouth(painter, line, 8);
      break;
    case Mouth::kShout:
      PaintOpenMouth(painter, Ellipse({8, 18.4}, 5.4, 5.2), 1.4);
      break;
    case Mouth::kGum:
      PaintBubble(painter);
      break;
    case Mouth::kStraw:
      line.moveTo(1.5, 16);
      line.quadTo({8, 19.5}, {14, 15.6});
      PaintLine(painter, line, lips, 2);
      PaintLine(painter, Segment({11, 17}, {26.5, 13.5}), kInk, 3.6);
      PaintLine(painter, Segment({11, 17}, {26.5, 13.5}), kStraw, 1.8);
      break;
  }
}

}  // namespace morlek::art

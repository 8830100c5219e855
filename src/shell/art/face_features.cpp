#include <QPainter>
#include <array>

#include "shell/art/face_parts.h"
#include "shell/art/shapes.h"

namespace morlek::art {
namespace {

constexpr std::array<QPointF, 2> kEyeCenters = {{{-1.5, 1}, {14, 1}}};
constexpr QColor kLips{0x8a, 0x35, 0x32};
constexpr QColor kGum{0xf2, 0x86, 0xb4};
constexpr QColor kGumShine{0xfd, 0xd9, 0xe8};
constexpr QColor kStraw{0xf0, 0xcf, 0x5a};
constexpr QColor kPlaster{0xff, 0xf1, 0xd6};

/// One brow by the height of its three points, from the nose outwards, and its thickness.
struct BrowShape {
  qreal inner;
  qreal middle;
  qreal outer;
  qreal thickness;
};

BrowShape BrowShapeOf(Brows brows) {
  switch (brows) {
    case Brows::kStern:
      return {-3.2, -5.2, -7, 3.2};
    case Brows::kRaised:
      return {-5.4, -7.4, -4.8, 2.2};
    case Brows::kBushy:
      return {-5, -6.2, -4.4, 4.6};
    case Brows::kFlat:
      break;
  }
  return {-5, -5.6, -4.8, 2.6};
}

void PaintOpenMouth(QPainter& painter, const QPainterPath& mouth, qreal teeth_height) {
  PaintLine(painter, mouth, kInk, 2.6);
  painter.fillPath(mouth, kLips);
  painter.save();
  painter.setClipPath(mouth, Qt::IntersectClip);
  painter.fillRect(QRectF(-10, 8, 40, teeth_height + 6.5), kTeeth.light);
  painter.restore();
}

void PaintBubble(QPainter& painter) {
  PaintSolid(painter, Ellipse({12.5, 18.5}, 8.6, 8.2), {kGum, kGum.darker(118)}, 3);
  PaintLine(painter, CurveThrough(std::array<QPointF, 3>{{{7, 17}, {8, 14.4}, {10.2, 13}}}),
            kGumShine, 2);
}

}  // namespace

JawLine JawLineOf(Jaw jaw) {
  switch (jaw) {
    case Jaw::kSquare:
      return {{-16.5, 17.5}, {-5, 27}, {14, 27}, {21.5, 16.5}};
    case Jaw::kRound:
      return {{-18, 14}, {-5, 25}, {12, 25}, {23.5, 12}};
    case Jaw::kLong:
      return {{-14.5, 17}, {-3, 28.5}, {11.5, 28.5}, {18.8, 16}};
    case Jaw::kOval:
      break;
  }
  return {{-16, 15}, {-4, 25.8}, {12, 25.8}, {20.8, 14}};
}

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

void PaintBrows(QPainter& painter, Brows brows) {
  const BrowShape shape = BrowShapeOf(brows);
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
      PaintLine(painter, Segment({11, 17}, {26, 21.5}), kInk, 3.6);
      PaintLine(painter, Segment({11, 17}, {26, 21.5}), kStraw, 1.8);
      break;
  }
}

void PaintMark(QPainter& painter, Mark mark, const Tone& skin) {
  switch (mark) {
    case Mark::kNone:
      break;
    case Mark::kFreckles:
      for (const QPointF& spot : std::array<QPointF, 8>{{{-7, 8},
                                                         {-3.4, 10},
                                                         {-8, 12},
                                                         {0.4, 7.6},
                                                         {-4, 13.6},
                                                         {15, 8},
                                                         {18, 9.6},
                                                         {16, 11.6}}}) {
        painter.fillPath(Ellipse(spot, 1.1, 1.1), skin.shade.darker(125));
      }
      break;
    case Mark::kScar: {
      const QColor color = skin.shade.darker(140);
      PaintLine(painter, Segment({-9.5, 6}, {-3.5, 18}), color, 1.8);
      for (const qreal y : {8.5, 12.0, 15.5}) {
        const qreal x = -9.5 + (y - 6) / 2;
        PaintLine(painter, Segment({x - 2.4, y + 1}, {x + 2.4, y - 1}),
                  color, 1.4);
      }
      break;
    }
    case Mark::kPlaster: {
      const QPainterPath strip = Taper({{-9.5, 13.5}, 2.8}, {{-2.5, 8.5}, 2.8});
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

#include <QPainter>
#include <array>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr QColor kClearGlass{0xdc, 0xea, 0xff, 0x38};
constexpr std::array<QPointF, 2> kLensCenters = {{{-1.5, 1.4}, {14.2, 1.4}}};

void PaintFrame(QPainter& painter, const QPainterPath& lens, qreal thickness) {
  painter.fillPath(lens, kClearGlass);
  PaintLine(painter, lens, kInk, thickness);
}

void PaintTemple(QPainter& painter, qreal thickness) {
  PaintLine(painter, Segment({-8, 0}, {-17, -1}), kInk, thickness);
}

void PaintGlasses(QPainter& painter, bool is_round) {
  const qreal thickness = is_round ? 1.7 : 2.8;
  for (const QPointF& center : kLensCenters) {
    QPainterPath square;
    square.addRoundedRect(QRectF(center - QPointF(6.4, 4.8), QSizeF(12.4, 9.4)), 2, 2);
    PaintFrame(painter, is_round ? Ellipse(center, 6, 6) : square, thickness);
  }
  PaintLine(painter, Bow({4.6, 0.4}, {6.4, -1.2}, {8.2, 0.4}), kInk, thickness);
  PaintTemple(painter, thickness);
}

void PaintShades(QPainter& painter) {
  constexpr std::array<QPointF, 8> kLens = {
      {{-9, -4.5}, {6, -4.2}, {20.5, -4.8}, {20.5, 2}, {15, 6}, {8.5, 2.6}, {1.5, 6.4}, {-7.5, 4}}};
  PaintTemple(painter, 3);
  PaintSolid(painter, RoundThrough(kLens), {{0x2b, 0x36, 0x48}, {0x14, 0x1a, 0x24}}, 2);
  PaintLine(painter, Segment({-6, 1.4}, {-2.6, -2.6}), kGlint, 1.7);
  PaintLine(painter, Segment({12, 1.4}, {15.4, -2.6}), kGlint, 1.7);
}

void PaintGoggles(QPainter& painter) {
  PaintLine(painter, Segment({-9, 0.5}, {-22, 1.5}), kInk, 6.2);
  PaintLine(painter, Segment({-9, 0.5}, {-22, 1.5}), kRed, 3.4);
  QPainterPath frame;
  frame.addRoundedRect(QRectF(-9.4, -5.6, 30.6, 13), 6, 6);
  PaintLine(painter, frame, kInk, 4.4);
  PaintFrame(painter, frame, 1);
  PaintLine(painter, frame, kRed, 2);
  PaintLine(painter, Segment({6.4, -4.6}, {6.4, 6.4}), kRed, 1.6);
}

void PaintEyeBlack(QPainter& painter) {
  for (const QPointF& start : std::array<QPointF, 2>{{{-5, 7.2}, {13.4, 7.2}}}) {
    PaintLine(painter, Segment(start, start + QPointF(5.4, 0)), kInk, 3.6);
  }
}

}  // namespace

void PaintEyewear(QPainter& painter, Eyewear eyewear) {
  const bool is_round = eyewear == Eyewear::kRoundGlasses;
  if (is_round || eyewear == Eyewear::kSquareGlasses) PaintGlasses(painter, is_round);
  if (eyewear == Eyewear::kShades) PaintShades(painter);
  if (eyewear == Eyewear::kGoggles) PaintGoggles(painter);
  if (eyewear == Eyewear::kEyeBlack) PaintEyeBlack(painter);
}

}  // namespace morlek::art

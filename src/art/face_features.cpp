#include <QPainter>
#include <array>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr std::array<QPointF, 2> kEyeCenters = {{{-1.5, 1}, {14, 1}}};

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

}  // namespace morlek::art

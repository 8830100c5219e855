#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <span>

#include "art/palette.h"

class QPainter;

/// Shapes and strokes for all pictures. Lengths are in the units of the picture.
namespace morlek::art {

struct Disc {
  QPointF center;
  qreal radius = 0;
};

/// A closed round curve through three points or more.
[[nodiscard]] QPainterPath RoundThrough(std::span<const QPointF> points);

/// An open round curve through two points or more.
[[nodiscard]] QPainterPath CurveThrough(std::span<const QPointF> points);

[[nodiscard]] QPainterPath Segment(QPointF from, QPointF to);

/// A curve between two points that is drawn towards a third.
[[nodiscard]] QPainterPath Bow(QPointF from, QPointF towards, QPointF to);

/// A closed shape of straight edges.
[[nodiscard]] QPainterPath Polygon(std::span<const QPointF> points);

[[nodiscard]] QPainterPath Ellipse(QPointF center, qreal radius_x, qreal radius_y);

[[nodiscard]] QRectF SquareAround(const Disc& disc);

/// Two discs and everything between them. All capsules are wound the same way and fill by winding,
/// so that adding one to another joins them into one shape.
[[nodiscard]] QPainterPath Capsule(const Disc& from, const Disc& to);

/// The point at a share, 0 to 1, of the way.
[[nodiscard]] QPointF Between(QPointF from, QPointF to, qreal share);

/// A square of the given size, or larger, round all parts of a picture. No part reaches into its
/// lower right corner, which is for the code.
[[nodiscard]] QRectF FrameAround(std::span<const QRectF> parts, qreal smallest_size);

/// Fills a shape, its lower right edge in a shade of the given depth.
void PaintTone(QPainter& painter, const QPainterPath& shape, const Tone& tone, qreal depth = 3);

/// As PaintTone, with an ink line around the shape.
void PaintSolid(QPainter& painter, const QPainterPath& shape, const Tone& tone, qreal depth = 3);

/// A line with round ends.
void PaintLine(QPainter& painter, const QPainterPath& line, const QColor& color, qreal width);

}  // namespace morlek::art

#include "art/shapes.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <numeric>

namespace morlek::art {
namespace {

/// The visible width of the ink line around a shape.
constexpr qreal kInkWidth = 2.0;

/// One piece of a curve from `from` to `to` that passes both in the direction of its neighbours.
void AddRoundSegment(QPainterPath& path, QPointF before, QPointF from, QPointF to, QPointF after) {
  path.cubicTo(from + (to - before) / 6, to - (after - from) / 6, to);
}

QPen RoundPen(const QColor& color, qreal width) {
  return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

QPainterPath RoundThrough(std::span<const QPointF> points) {
  const std::size_t count = points.size();
  QPainterPath path(points[0]);
  for (std::size_t i = 0; i < count; ++i) {
    AddRoundSegment(path, points[(i + count - 1) % count], points[i], points[(i + 1) % count],
                    points[(i + 2) % count]);
  }
  path.closeSubpath();
  return path;
}

QPainterPath CurveThrough(std::span<const QPointF> points) {
  const std::size_t last = points.size() - 1;
  QPainterPath path(points[0]);
  for (std::size_t i = 0; i < last; ++i) {
    AddRoundSegment(path, points[i == 0 ? 0 : i - 1], points[i], points[i + 1],
                    points[std::min(i + 2, last)]);
  }
  return path;
}

QPainterPath Segment(QPointF from, QPointF to) {
  QPainterPath path(from);
  path.lineTo(to);
  return path;
}

QPainterPath Bow(QPointF from, QPointF towards, QPointF to) {
  QPainterPath path(from);
  path.quadTo(towards, to);
  return path;
}

QPainterPath Polygon(std::span<const QPointF> points) {
  QPainterPath path(points[0]);
  for (const QPointF& point : points.subspan(1)) path.lineTo(point);
  path.closeSubpath();
  return path;
}

QPainterPath Ellipse(QPointF center, qreal radius_x, qreal radius_y) {
  QPainterPath path;
  path.addEllipse(center, radius_x, radius_y);
  return path;
}

QRectF SquareAround(const Disc& disc) {
  const QPointF reach(disc.radius, disc.radius);
  return {disc.center - reach, disc.center + reach};
}

QPainterPath Capsule(const Disc& from, const Disc& to) {
  const QLineF axis(from.center, to.center);
  const Disc& larger = from.radius > to.radius ? from : to;
  if (axis.length() <= std::abs(from.radius - to.radius)) {
    return Ellipse(larger.center, larger.radius, larger.radius);
  }
  const qreal spread =
      std::acos((from.radius - to.radius) / axis.length()) * 180 / std::numbers::pi;
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.arcMoveTo(SquareAround(from), axis.angle() + spread);
  path.arcTo(SquareAround(from), axis.angle() + spread, 360 - 2 * spread);
  path.arcTo(SquareAround(to), axis.angle() - spread, 2 * spread);
  path.closeSubpath();
  return path;
}

QPointF Between(QPointF from, QPointF to, qreal share) { return from + (to - from) * share; }

QRectF FrameAround(std::span<const QRectF> parts, qreal smallest_size) {
  // Shares of the square: where the code's corner starts, and the least margin.
  constexpr QPointF kCorner(0.85, 0.755);
  constexpr qreal kMargin = 0.03;
  const QRectF room = std::accumulate(parts.begin(), parts.end(), QRectF(), std::bit_or());
  qreal size = std::max(smallest_size, std::max(room.width(), room.height()) / (1 - 2 * kMargin));
  for (const QRectF& part : parts) {
    const QPointF reach = part.bottomRight() - room.topLeft();
    size = std::max(
        size, std::min(reach.x() / (kCorner.x() - kMargin), reach.y() / (kCorner.y() - kMargin)));
  }
  // The remaining room is divided between both sides, as far as the corner stays free.
  QPointF place(kMargin * size, kMargin * size);
  const auto least_slack = [&](auto along, auto across) {
    qreal slack = size;
    for (const QRectF& part : parts) {
      const QPointF end = part.bottomRight() - room.topLeft() + place;
      const bool is_at_corner = across(end) > across(kCorner) * size;
      slack = std::min(slack, (is_at_corner ? along(kCorner) : 1 - kMargin) * size - along(end));
    }
    return slack;
  };
  const auto x = [](QPointF point) { return point.x(); };
  const auto y = [](QPointF point) { return point.y(); };
  place.rx() += least_slack(x, y) / 2;
  place.ry() += least_slack(y, x) / 2;
  return {room.topLeft() - place, QSizeF(size, size)};
}

void PaintTone(QPainter& painter, const QPainterPath& shape, const Tone& tone, qreal depth) {
  painter.save();
  painter.setClipPath(shape, Qt::IntersectClip);
  painter.fillPath(shape, tone.shade);
  painter.fillPath(shape.translated(-depth * 0.8, -depth * 0.6), tone.light);
  painter.restore();
}

void PaintSolid(QPainter& painter, const QPainterPath& shape, const Tone& tone, qreal depth) {
  painter.strokePath(shape, RoundPen(kInk, 2 * kInkWidth));
  PaintTone(painter, shape, tone, depth);
}

void PaintLine(QPainter& painter, const QPainterPath& line, const QColor& color, qreal width) {
  painter.strokePath(line, RoundPen(color, width));
}

}  // namespace morlek::art

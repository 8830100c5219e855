#pragma once

#include <QPainterPath>
#include <QPointF>

class QPainter;

namespace morlek::art {

inline constexpr qreal kBatLength = 54;

/// The way from knob to tip, one unit long; the angle as in BatHold.
[[nodiscard]] QPointF BatDirection(qreal angle);

/// The outline of a bat from the end of its knob to its tip; the girth is half its greatest width.
[[nodiscard]] QPainterPath BatShape(QPointF knob, QPointF tip, qreal girth);

void PaintBat(QPainter& painter, QPointF knob, qreal angle);

}  // namespace morlek::art

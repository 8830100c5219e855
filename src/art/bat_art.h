#pragma once

#include <QPointF>

class QPainter;

namespace morlek::art {

inline constexpr qreal kBatLength = 54;

/// The way from knob to tip, one unit long; the angle as in BatHold.
[[nodiscard]] QPointF BatDirection(qreal angle);

/// Paints a bat. The scale multiplies its length and its width.
void PaintBat(QPainter& painter, QPointF knob, qreal angle, qreal scale = 1);

}  // namespace morlek::art

#pragma once

#include <QPointF>
#include <QRectF>

#include "art/palette.h"

class QPainter;

namespace morlek::art {

/// The square that shows the body of a code; (0, 0) is the middle of the waist. Bodies that take
/// little room are shown a little larger than others.
[[nodiscard]] QRectF BodyFrame(int code);

/// Where the head frame's (0, 0) sits on any body, and the head's scale there.
inline constexpr QPointF kHeadPlace{3, -74};
inline constexpr qreal kHeadScale = 0.84;

/// Paints what is behind the head: torso, neck and, with some holds, the bat.
void PaintTorso(QPainter& painter, int code, const Kit& kit);

/// Paints what is in front of the head: arms and, with the other holds, the bat.
void PaintArms(QPainter& painter, int code, const Kit& kit);

}  // namespace morlek::art

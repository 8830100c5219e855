#pragma once

#include <QRectF>

#include "art/palette.h"

class QPainter;

namespace morlek::art {

/// The square that shows the legs of a code; (0, 0) is on the ground. All squares are of one size.
[[nodiscard]] QRectF LegsFrame(int code);

/// Paints the legs of a code that has a picture, from belt to shoes.
void PaintLegs(QPainter& painter, int code, const Kit& kit);

}  // namespace morlek::art

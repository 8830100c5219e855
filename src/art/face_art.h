#pragma once

#include <QRectF>

#include "art/palette.h"

class QPainter;

namespace morlek::art {

/// The room that every head keeps within; (0, 0) is next to the middle of the near eye.
inline constexpr QRectF kHeadFrame{-31, -35, 71, 71};

/// Paints the head of a face code that has a picture, looking to the right.
void PaintHead(QPainter& painter, int code, const Kit& kit);

}  // namespace morlek::art

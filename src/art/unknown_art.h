#pragma once

#include <QRectF>

class QPainter;

namespace morlek::art {

/// Paints a dashed outline with a question mark: something is there that has no picture. Its grey
/// stands out from light and dark backgrounds.
void PaintUnknown(QPainter& painter, const QRectF& room);

}  // namespace morlek::art

#pragma once

#include <QRectF>

class QPainter;

namespace morlek {

/// Paints the picture of the splash window, made for 480 x 300 logical pixels and stretched evenly
/// to cover any other target. Uses the font family Roboto.
void PaintSplash(QPainter& painter, const QRectF& target);

/// Paints the program's icon in the middle of a target: a square, readable from 16 pixels upwards.
void PaintAppIcon(QPainter& painter, const QRectF& target);

}  // namespace morlek

#pragma once

#include <QColor>

class QPainter;
class QRect;

namespace morlek {

/// Frames a rectangle inside its edge with lines of `width` logical pixels, and fills it up to
/// their outer edge. Lines are on whole pixels of the device, so that they stay even at fractional
/// scale factors, and two rectangles that overlap by a line paint it in the same place.
void FrameSnapped(QPainter& painter, const QRect& rect, int width, const QColor& color,
                  const QColor& background = Qt::transparent);

}  // namespace morlek

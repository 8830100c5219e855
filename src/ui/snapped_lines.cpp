#include "ui/snapped_lines.h"

#include <QPainter>
#include <algorithm>

namespace morlek {

void FrameSnapped(QPainter& painter, const QRect& rect, int width, const QColor& color,
                  const QColor& background) {
  const QTransform to_device = painter.deviceTransform();
  const auto device_x = [&](int x) { return qRound(to_device.map(QPointF(x, 0)).x()); };
  const auto device_y = [&](int y) { return qRound(to_device.map(QPointF(0, y)).y()); };
  const int thickness = std::max(1, static_cast<int>(width * to_device.m11()));

  const int left = device_x(rect.left());
  const int top = device_y(rect.top());
  // The far lines start where a neighbour that overlaps by the line has its near ones.
  const int right = device_x(rect.left() + rect.width() - width);
  const int bottom = device_y(rect.top() + rect.height() - width);

  painter.save();
  painter.setTransform(to_device.inverted(), true);
  painter.fillRect(left, top, right + thickness - left, bottom + thickness - top, background);
  painter.fillRect(left, top, right + thickness - left, thickness, color);
  painter.fillRect(left, bottom, right + thickness - left, thickness, color);
  painter.fillRect(left, top, thickness, bottom + thickness - top, color);
  painter.fillRect(right, top, thickness, bottom + thickness - top, color);
  painter.restore();
}

}  // namespace morlek

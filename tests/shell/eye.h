#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <map>

namespace morlek {

/// What stands on the screen where the widget is: only what has been painted again counts, and what
/// covers the widget or cuts it off is seen instead.
[[nodiscard]] inline QImage Seen(const QWidget& widget) {
  constexpr int kPaintMilliseconds = 20;
  QTest::qWait(kPaintMilliseconds);
  const QWidget& window = *widget.window();
  const QImage all = window.screen()->grabWindow(window.winId()).toImage();
  return all.copy(QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size()))
      .convertToFormat(QImage::Format_RGB32);
}

/// How many pixels there are of each colour.
[[nodiscard]] inline std::map<QRgb, int> ColorsOf(const QImage& image) {
  std::map<QRgb, int> colors;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++colors[image.pixel(x, y)];
  }
  return colors;
}

/// How many pixels are of a colour, or nearly so.
[[nodiscard]] inline int CountOf(const QImage& image, const QColor& wanted, int tolerance = 6) {
  int count = 0;
  for (const auto& [rgb, pixels] : ColorsOf(image)) {
    const QColor color(rgb);
    const int distance =
        std::max({std::abs(color.red() - wanted.red()), std::abs(color.green() - wanted.green()),
                  std::abs(color.blue() - wanted.blue())});
    if (distance <= tolerance) count += pixels;
  }
  return count;
}

}  // namespace morlek

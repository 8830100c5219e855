#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

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

/// The colour of most pixels.
[[nodiscard]] inline QColor GroundOf(const QImage& image) {
  const auto colors = ColorsOf(image);
  return std::ranges::max_element(colors, {}, [](const auto& color) { return color.second; })
      ->first;
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

/// How well two colours can be told apart, from 1 to 21.
[[nodiscard]] inline double Contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& color) {
    return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
           0.0722 * std::pow(color.blueF(), 2.2);
  };
  // Copies: what is compared is gone at the end of the line.
  const std::pair<double, double> both = std::minmax(luminance(one), luminance(other));
  const auto& [dark, light] = both;
  return (light + 0.05) / (dark + 0.05);
}

/// The contrast of an image's ground with what stands out most from it.
[[nodiscard]] inline double ContrastIn(const QImage& image) {
  double best = 1;
  const QColor ground = GroundOf(image);
  for (const auto& [color, pixels] : ColorsOf(image)) {
    best = std::max(best, Contrast(ground, color));
  }
  return best;
}

}  // namespace morlek

#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <map>

namespace morlek {

/// What stands on the screen where the widget is: only what has been painted again counts, and what
/// covers the widget or cuts it off is seen instead.
[[nodiscard]] inline QImage Seen(const QWidget& widget) {
  constexpr int kPaintMilliseconds = 20;
  QTest::qWait(kPaintMilliseconds);
  QWidget& window = *widget.window();
  const QImage all = window.screen()->grabWindow(window.winId()).toImage();
  return all.copy(QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size()))
      .convertToFormat(QImage::Format_RGB32);
}

/// The colour of most pixels.
[[nodiscard]] inline QRgb GroundOf(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  const auto by_count = [](const auto& a, const auto& b) { return a.second < b.second; };
  return counts.empty() ? 0 : std::ranges::max_element(counts, by_count)->first;
}

/// How many pixels are of a colour, or nearly so.
[[nodiscard]] inline int CountOf(const QImage& image, QColor color, int tolerance = 6) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      const int distance =
          std::max({std::abs(pixel.red() - color.red()), std::abs(pixel.green() - color.green()),
                    std::abs(pixel.blue() - color.blue())});
      if (distance <= tolerance) ++count;
    }
  }
  return count;
}

/// How many pixels are not of the ground's colour.
[[nodiscard]] inline int InkOf(const QImage& image) {
  return image.width() * image.height() - CountOf(image, QColor(GroundOf(image)));
}

/// How well two colours can be told apart, from 1 to 21; text needs 4.5.
[[nodiscard]] inline double Contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& color) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
  };
  const auto [dark, light] = std::minmax(luminance(one), luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

/// The contrast of an image's ground with what stands out most from it.
[[nodiscard]] inline double ContrastIn(const QImage& image) {
  const QColor ground(GroundOf(image));
  double best = 1;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      best = std::max(best, Contrast(ground, image.pixelColor(x, y)));
    }
  }
  return best;
}

}  // namespace morlek

#pragma once

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <cmath>
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

}  // namespace morlek

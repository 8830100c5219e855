#pragma once

#include <QRgb>
#include <algorithm>
#include <cstdlib>

namespace morlek {

/// A colour, or what is computed from colours, by its red, green and blue.
struct Channels {
  int red = 0;
  int green = 0;
  int blue = 0;

  static Channels Of(QRgb color) { return {qRed(color), qGreen(color), qBlue(color)}; }

  /// The colour that this is, or the nearest one where it is none.
  [[nodiscard]] QRgb Color() const {
    const auto level = [](int channel) { return std::clamp(channel, 0, 255); };
    return qRgb(level(red), level(green), level(blue));
  }

  /// The value that is farthest from 0, without its sign.
  [[nodiscard]] int Most() const {
    return std::max({std::abs(red), std::abs(green), std::abs(blue)});
  }

  /// How long this is as an arrow, squared.
  [[nodiscard]] int Square() const { return red * red + green * green + blue * blue; }

  Channels& operator+=(const Channels& other) {
    red += other.red;
    green += other.green;
    blue += other.blue;
    return *this;
  }
  friend Channels operator+(Channels one, const Channels& other) { return one += other; }
  friend Channels operator*(const Channels& one, int times) {
    return {one.red * times, one.green * times, one.blue * times};
  }
  friend Channels operator/(const Channels& one, int parts) {
    return {one.red / parts, one.green / parts, one.blue / parts};
  }
  friend Channels operator-(const Channels& one, const Channels& other) { return one + other * -1; }
  friend bool operator==(const Channels&, const Channels&) = default;
};

}  // namespace morlek

#pragma once

#include <QRect>

namespace morlek {

/// Window geometry is given in twips, 1/1440 inch; 15 of them are one logical pixel at every scale.
/// The result is rounded towards zero.
[[nodiscard]] constexpr int FromTwips(int twips) { return twips / 15; }

[[nodiscard]] constexpr QRect RectFromTwips(int left, int top, int width, int height) {
  return {FromTwips(left), FromTwips(top), FromTwips(width), FromTwips(height)};
}

}  // namespace morlek

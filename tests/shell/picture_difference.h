#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace morlek {

/// The image with so many pixels made one, each way.
[[nodiscard]] inline QImage Reduced(const QImage& image, int times) {
  return image.scaled(image.size() / times, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// How far two pictures of one size are apart, channel by channel. What counts is the mean of a
/// tile; tiles overlap by half, so that what is small lies nearly whole in one of them.
struct PictureDifference {
  /// How far a tile may be off.
  static constexpr int kLimit = 3;

  PictureDifference(QImage one, const QImage& other) : picture(std::move(one)) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.drawImage(0, 0, other);
    painter.end();
    constexpr int kTile = 8;
    constexpr int kHalf = kTile / 2;
    for (const QPoint shift : {QPoint(0, 0), {kHalf, 0}, {0, kHalf}, {kHalf, kHalf}}) {
      const QImage tiles = Reduced(picture.copy(QRect(shift, picture.size())), kTile);
      for (int y = 0; y < tiles.height(); ++y) {
        for (int x = 0; x < tiles.width(); ++x) {
          const QColor mean(tiles.pixel(x, y));
          const int most = std::max({mean.red(), mean.green(), mean.blue()});
          if (most > worst) worst_place = QPoint(x, y) * kTile + shift;
          worst = std::max(worst, most);
        }
      }
    }
  }

  [[nodiscard]] bool is_small() const { return worst <= kLimit; }

  /// The lighter the farther apart.
  QImage picture;
  /// The mean of the worst tile, from 0 to 255, and where its left upper corner is.
  int worst = 0;
  QPoint worst_place;
};

}  // namespace morlek

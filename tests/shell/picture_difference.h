#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <vector>

#include "shell/channels.h"

namespace morlek {

/// How far two pictures of one size are apart, from 0 to 255, by tiles.
///
/// A pixel's colour is the mean of it and its eight neighbours, so that a stroke that lies a
/// fraction of a pixel off counts little; what counts is the channel that differs most. Tiles
/// overlap by half, so that what is small lies whole in one of them.
class PictureDifference {
 public:
  /// How far a tile may be off. Qt 6.4 and 6.8 are at most 0.4 apart and the colours that a kept
  /// picture lacks make 3 at most; a row without its tint makes 6, a missing red corner 18.
  static constexpr double kLimit = 4;

  PictureDifference(const QImage& one, const QImage& other) : area_(one.rect()) {
    Measure(one, other);
    for (int top = 0; top < area_.height(); top += kSide / 2) {
      for (int left = 0; left < area_.width(); left += kSide / 2) {
        const QRect tile = QRect(left, top, kSide, kSide).intersected(area_);
        const double mean = MeanOf(tile);
        if (mean > kLimit) beyond_ += tile;
        if (mean > worst_) std::tie(worst_, worst_place_) = std::pair(mean, tile.topLeft());
      }
    }
  }

  /// Whether no tile is beyond the limit.
  [[nodiscard]] bool IsSmall() const { return beyond_.isEmpty(); }

  [[nodiscard]] double worst() const { return worst_; }
  [[nodiscard]] QPoint worst_place() const { return worst_place_; }

  /// The lighter a pixel the farther apart, on red where a tile is beyond the limit.
  [[nodiscard]] QImage Picture() const {
    QImage picture(area_.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (const QRect& tile : beyond_) painter.fillRect(tile, QColor(0x60, 0, 0));
    painter.end();
    for (int y = 0; y < area_.height(); ++y) {
      for (int x = 0; x < area_.width(); ++x) {
        const int lightness = 2 * At(x, y);
        const Channels light{lightness, lightness, lightness};
        picture.setPixel(x, y, (Channels::Of(picture.pixel(x, y)) + light).Color());
      }
    }
    return picture;
  }

 private:
  static constexpr int kSide = 16;
  static constexpr int kNeighbourhood = 9;

  [[nodiscard]] std::size_t PlaceOf(int x, int y) const {
    return static_cast<std::size_t>(y * area_.width() + x);
  }
  [[nodiscard]] int At(int x, int y) const { return levels_[PlaceOf(x, y)]; }

  void Measure(const QImage& one, const QImage& other) {
    const auto pixels = static_cast<std::size_t>(area_.width() * area_.height());
    std::vector<Channels> sums(pixels);
    for (int y = 0; y < area_.height(); ++y) {
      for (int x = 0; x < area_.width(); ++x) {
        const Channels apart = Channels::Of(one.pixel(x, y)) - Channels::Of(other.pixel(x, y));
        if (apart == Channels()) continue;
        const QRect around = QRect(x - 1, y - 1, 3, 3).intersected(area_);
        for (int row = around.top(); row <= around.bottom(); ++row) {
          for (int column = around.left(); column <= around.right(); ++column) {
            sums[PlaceOf(column, row)] += apart;
          }
        }
      }
    }
    levels_.reserve(pixels);
    for (const Channels& sum : sums) {
      levels_.push_back((sum.Most() + kNeighbourhood / 2) / kNeighbourhood);
    }
  }

  [[nodiscard]] double MeanOf(const QRect& tile) const {
    int sum = 0;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
      for (int x = tile.left(); x <= tile.right(); ++x) sum += At(x, y);
    }
    return static_cast<double>(sum) / (kSide * kSide);
  }

  QRect area_;
  std::vector<int> levels_;  // of each pixel
  double worst_ = 0;
  QPoint worst_place_;
  QRegion beyond_;
};

}  // namespace morlek

#pragma once

#include <QImage>
#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "shell/channels.h"
#include "shell/eye.h"

namespace morlek {

/// A picture in 256 colours at most, a third of its size as a file. The colours of most pixels,
/// which are the flat grounds, stay exactly as they are; of the others the mean stays.
class FewColors {
 public:
  /// The image outlives this.
  explicit FewColors(const QImage& image) : image_(image), pixels_of_(ColorsOf(image)) {
    int spread = 0;
    while (!Choose(spread)) ++spread;
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) Settle();
  }

  [[nodiscard]] QImage Picture() const {
    QImage picture(image_.size(), QImage::Format_Indexed8);
    picture.setColorTable(chosen_);
    const std::set<QRgb> exact(chosen_.begin(), chosen_.begin() + std::min(kExact, chosen_.size()));
    std::map<QRgb, qsizetype> found;
    // What is wrong at a pixel is made good half by the next one, half by the one below.
    std::vector<Channels> missing_below(static_cast<std::size_t>(image_.width()));
    for (int y = 0; y < image_.height(); ++y) {
      Channels missing_left;
      int x = 0;
      for (Channels& missing : missing_below) {
        const QRgb color = image_.pixel(x, y);
        const QRgb wanted =
            exact.contains(color) ? color : (Channels::Of(color) + missing_left + missing).Color();
        if (!found.contains(wanted)) found[wanted] = Nearest(wanted);
        const qsizetype place = found[wanted];
        picture.setPixel(x++, y, static_cast<uint>(place));
        const Channels wrong = Channels::Of(wanted) - Channels::Of(chosen_[place]);
        missing_left = wrong / 2;
        missing = wrong - missing_left;
      }
    }
    return picture;
  }

 private:
  static constexpr qsizetype kMost = 256;
  static constexpr qsizetype kExact = 96;

  static int Distance(QRgb one, QRgb other) {
    return (Channels::Of(one) - Channels::Of(other)).Square();
  }

  [[nodiscard]] qsizetype Nearest(QRgb color) const {
    const auto distance = [color](QRgb other) { return Distance(color, other); };
    return std::ranges::min_element(chosen_, {}, distance) - chosen_.begin();
  }

  /// Chooses colours, those of most pixels first, until no other is farther than the spread from
  /// all of them; false when that takes too many.
  bool Choose(int spread) {
    std::vector<std::pair<int, QRgb>> by_pixels;
    for (const auto& [color, pixels] : pixels_of_) by_pixels.emplace_back(-pixels, color);
    std::ranges::sort(by_pixels);
    chosen_.clear();
    for (const auto& pair : by_pixels) {
      const QRgb color = pair.second;
      const auto is_near = [&](QRgb other) { return Distance(color, other) <= spread * spread; };
      if (chosen_.size() >= kExact && std::ranges::any_of(chosen_, is_near)) continue;
      if (chosen_.size() == kMost) return false;
      chosen_.push_back(color);
    }
    return true;
  }

  /// Moves each colour but the exact ones to the middle of those that it stands for.
  void Settle() {
    std::map<qsizetype, std::pair<Channels, int>> sums;
    for (const auto& [color, pixels] : pixels_of_) {
      auto& [sum, count] = sums[Nearest(color)];
      sum += Channels::Of(color) * pixels;
      count += pixels;
    }
    for (const auto& [place, sum] : sums) {
      if (place >= kExact) chosen_[place] = (sum.first / sum.second).Color();
    }
  }

  const QImage& image_;
  std::map<QRgb, int> pixels_of_;
  QList<QRgb> chosen_;
};

}  // namespace morlek

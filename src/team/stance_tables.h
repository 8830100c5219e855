#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace morlek {

/// The pictures of a chooser stand in columns of twelve: picture index = 12 * column + row.
inline constexpr int kPictureRows = 12;

/// The code of a face or body picture, index 0 to 47; nothing for any other index.
[[nodiscard]] constexpr std::optional<std::uint8_t> FaceOrBodyCode(int index) {
  constexpr int kPictures = 48;
  if (index < 0 || index >= kPictures) return std::nullopt;
  const int column = index / kPictureRows;
  const int row = index % kPictureRows;
  return static_cast<std::uint8_t>(16 * (row / 2) + 4 * (row % 2) + column);
}

/// The indices of the legs pictures in the order of their codes, 0x00 to 0x04 and 0x10 to 0x14.
inline constexpr std::array<int, 10> kLegsIndices = {0, 12, 24, 36, 1, 13, 25, 37, 2, 14};

/// The code of a legs picture; nothing for an index without a picture.
[[nodiscard]] constexpr std::optional<std::uint8_t> LegsCode(int index) {
  constexpr int kGroupSize = 5;
  for (int place = 0; place < static_cast<int>(kLegsIndices.size()); ++place) {
    if (kLegsIndices.at(static_cast<std::size_t>(place)) != index) continue;
    return static_cast<std::uint8_t>(16 * (place / kGroupSize) + place % kGroupSize);
  }
  return std::nullopt;
}

}  // namespace morlek

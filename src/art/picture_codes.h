#pragma once

#include <cstdint>

namespace morlek {

/// Pictures are arranged in four columns of twelve. The index of a picture is 12 * column + row.
inline constexpr int kPictureColumns = 4;
inline constexpr int kPictureRows = 12;

/// The codes of one kind of piece that have a picture: a high digit and a low digit, each up to a
/// limit. In the order of the codes the pictures fill one row of the chooser after the other.
class PictureCodes {
 public:
  constexpr PictureCodes(int high_digits, int low_digits)
      : high_digits_(high_digits), low_digits_(low_digits) {}

  [[nodiscard]] constexpr int count() const { return high_digits_ * low_digits_; }

  /// Whether a code, of any value, has a picture.
  [[nodiscard]] constexpr bool Contains(int code) const {
    return code >= 0 && code / 16 < high_digits_ && code % 16 < low_digits_;
  }

  /// The place of a code that has a picture in the order of the codes, from 0 on.
  [[nodiscard]] constexpr int PlaceOf(int code) const {
    return low_digits_ * (code / 16) + code % 16;
  }

  /// The code at a place, 0 to count() - 1.
  [[nodiscard]] constexpr std::uint8_t CodeAt(int place) const {
    return static_cast<std::uint8_t>(16 * (place / low_digits_) + place % low_digits_);
  }

  /// The picture index of a place.
  [[nodiscard]] static constexpr int IndexAt(int place) {
    return kPictureRows * (place % kPictureColumns) + place / kPictureColumns;
  }

 private:
  int high_digits_;
  int low_digits_;
};

inline constexpr PictureCodes kFaceAndBodyCodes{6, 8};
inline constexpr PictureCodes kLegsCodes{2, 5};

}  // namespace morlek

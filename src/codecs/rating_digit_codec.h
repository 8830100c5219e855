#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "image/record_layout.h"

namespace morlek {

/// The texts of a slot's two rating bytes, two upper-case hexadecimal digits each.
struct RatingTexts {
  std::string first;
  std::string second;
};

/// The rating bytes of the loaded team, and their texts. A rating is stored as one less than it is
/// shown.
class RatingDigitCodec {
 public:
  /// The bytes of the two rating fields, one of each a slot.
  std::array<std::uint8_t, kSlotCount> first_bytes{};
  std::array<std::uint8_t, kSlotCount> second_bytes{};

  /// The texts of both bytes of `slot` (0 to 24); every byte has one.
  [[nodiscard]] RatingTexts FormatRatingBytes(int slot) const;
};

/// The rating that a digit of such a text, or a pitcher's whole text, shows: one more, in decimal.
/// Nothing when a digit is a letter.
[[nodiscard]] std::optional<std::string> ShownRating(std::string_view digits);

/// The byte value of two shown ratings, formed by joining their texts: exact while the second is 1
/// to 9. A value above 255 is a result that no byte can hold; nothing when the texts are no number
/// or give no digits.
[[nodiscard]] std::optional<std::int32_t> PackRatings(std::string_view first,
                                                      std::string_view second);

/// The byte value of the one rating that a pitcher has in the second field; as above.
[[nodiscard]] std::optional<std::int32_t> PackSingleRating(std::string_view rating);

}  // namespace morlek

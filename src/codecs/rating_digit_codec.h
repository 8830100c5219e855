#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// A slot's two rating bytes. A rating is stored as one less than it is shown.
struct RatingBytes {
  std::uint8_t first = 0;
  std::uint8_t second = 0;
};

/// Their texts, two upper-case hexadecimal digits each.
struct RatingTexts {
  std::string first;
  std::string second;
};

/// The texts of both bytes; every byte has one.
[[nodiscard]] RatingTexts FormatRatingBytes(const RatingBytes& bytes);

/// The rating that a digit of such a text, or a pitcher's whole text, shows: one more, in decimal.
/// Nothing when a digit is a letter.
[[nodiscard]] std::optional<std::string> ShownRating(std::string_view digits);

/// The byte value of two shown ratings, formed by joining their texts: exact while the second is 1
/// to 9. A value above 255 is a result that no byte can hold; nothing when the texts are no number
/// or the result has other characters than digits.
[[nodiscard]] std::optional<std::int32_t> PackRatings(std::string_view first,
                                                      std::string_view second);

/// Whether a load shows both texts again after SAVE has written the byte of such a pair.
[[nodiscard]] bool KeepsRatings(std::string_view first, std::string_view second);

/// The byte value of the one rating that a pitcher has in the second field; as above.
[[nodiscard]] std::optional<std::int32_t> PackSingleRating(std::string_view rating);

}  // namespace morlek

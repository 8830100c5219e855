#include "codecs/rating_digit_codec.h"

#include <limits>

#include "codecs/hex_text.h"
#include "codecs/number_text.h"

namespace morlek {
namespace {

/// Subtracts from the joined texts and reads the decimal digits of the difference as hexadecimal.
std::optional<std::int32_t> DigitsOfDifference(const std::string& joined, double subtrahend) {
  const std::optional<double> number = TextToNumber(joined);
  if (!number) return std::nullopt;
  return ByteTextToNumber(NumberToText(*number - subtrahend));
}

}  // namespace

RatingTexts FormatRatingBytes(const RatingBytes& bytes) {
  return {ByteToTwoDigits(bytes.first), ByteToTwoDigits(bytes.second)};
}

std::optional<std::string> ShownRating(std::string_view digits) {
  const std::optional<double> stored = TextToNumber(digits);
  if (!stored) return std::nullopt;
  return NumberToText(*stored + 1);
}

std::optional<std::int32_t> PackRatings(std::string_view first, std::string_view second) {
  return DigitsOfDifference(std::string(first).append(second), 11);
}

bool KeepsRatings(std::string_view first, std::string_view second) {
  const std::optional<std::int32_t> packed = PackRatings(first, second);
  if (!packed || *packed < 0 || *packed > std::numeric_limits<std::uint8_t>::max()) return false;
  const std::string digits = FormatRatingBytes({.first = static_cast<std::uint8_t>(*packed)}).first;
  return ShownRating(digits.substr(0, 1)) == first && ShownRating(digits.substr(1)) == second;
}

std::optional<std::int32_t> PackSingleRating(std::string_view rating) {
  return DigitsOfDifference(std::string("0").append(rating), 1);
}

}  // namespace morlek

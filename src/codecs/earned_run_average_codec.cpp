#include "codecs/earned_run_average_codec.h"

#include <optional>

#include "codecs/average_word.h"
#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::uint8_t kEraMarker = 0x20;

/// The hundredths of a text of one digit, a point and two digits; nothing for other text.
std::optional<int> Hundredths(std::string_view text) {
  if (text.size() != 4 || text[1] != '.') return std::nullopt;
  return NumberOfThreeDigits(std::string{text[0], text[2], text[3]});
}

}  // namespace

CodecAnswer EarnedRunAverageCodec::DecodeEarnedRunAverage(std::string_view key) {
  std::optional<std::string> digits;
  if (const auto number = NumberOfPairKey(key, kEraMarker)) digits = ThreeDigits(*number);
  return decoded_digits_.Answer(digits);
}

CodecAnswer EarnedRunAverageCodec::EncodeEarnedRunAverage(std::string_view text) {
  std::optional<std::string> low_byte;
  if (const auto number = Hundredths(text)) {
    const auto low = static_cast<std::uint8_t>(*number % 256);
    low_byte = *number < 256 ? ByteToText(low) : ByteToTwoDigits(low);
  }
  return encoded_low_byte_.Answer(low_byte);
}

std::uint8_t EarnedRunAverageCodec::HighByte(std::string_view text) {
  return text <= "2.55" ? kEraMarker : kEraMarker + 1;
}

}  // namespace morlek

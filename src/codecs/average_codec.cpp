#include "codecs/average_codec.h"

#include <algorithm>
#include <optional>

#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::uint8_t kBattingMarker = 0x30;
constexpr std::uint8_t kEraMarker = 0x20;

constexpr int kLargestNumber = 511;

/// The number, 0 to 511, in three decimal digits.
std::string ThreeDigits(int number) {
  const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
  return {digit(number / 100), digit(number / 10), digit(number)};
}

/// The digits of the number whose word has this key, for the high byte's marker; nothing when none
/// has.
std::optional<std::string> DigitsOfPairKey(std::string_view key, std::uint8_t marker) {
  constexpr std::size_t kHighDigits = 2;
  if (key.size() <= kHighDigits) return std::nullopt;
  const std::string_view low_text = key.substr(0, key.size() - kHighDigits);
  const auto low = HexDigitsToNumber(low_text);
  const auto high = HexDigitsToNumber(key.substr(low_text.size()));
  if (!low || *low > 0xFF || !high || *high < marker || *high > marker + 1U) return std::nullopt;

  const auto low_byte = static_cast<std::uint8_t>(*low);
  const auto high_byte = static_cast<std::uint8_t>(*high);
  if (PairKey(low_byte, high_byte) != key) return std::nullopt;
  return ThreeDigits((high_byte - marker) * 256 + low_byte);
}

/// The number that exactly three decimal digits show; nothing for other text and above 511.
std::optional<int> NumberOfThreeDigits(std::string_view digits) {
  const auto is_digit = [](char character) { return character >= '0' && character <= '9'; };
  if (digits.size() != 3 || !std::ranges::all_of(digits, is_digit)) return std::nullopt;
  const int number = (digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0');
  if (number > kLargestNumber) return std::nullopt;
  return number;
}

}  // namespace

std::string PairKey(std::uint8_t low, std::uint8_t high) {
  return ByteToText(low) + ByteToText(high);
}

CodecAnswer BattingAverageCodec::DecodeBattingAverage(std::string_view key) {
  std::optional<std::string> average = DigitsOfPairKey(key, kBattingMarker);
  if (average) average->insert(0, 1, '.');
  return decoded_average_.Answer(average);
}

CodecAnswer BattingAverageCodec::EncodeBattingAverage(std::string_view text) {
  std::optional<std::string> low_byte;
  if (text.starts_with('.')) {
    if (const auto number = NumberOfThreeDigits(text.substr(1))) {
      low_byte = ByteToTwoDigits(static_cast<std::uint8_t>(*number % 256));
    }
  }
  return encoded_low_byte_.Answer(low_byte);
}

std::uint8_t BattingAverageCodec::HighByte(std::string_view text) {
  return text <= ".255" ? kBattingMarker : kBattingMarker + 1;
}

CodecAnswer EarnedRunAverageCodec::DecodeEarnedRunAverage(std::string_view key) {
  return decoded_digits_.Answer(DigitsOfPairKey(key, kEraMarker));
}

CodecAnswer EarnedRunAverageCodec::EncodeEarnedRunAverage(std::string_view text) {
  std::optional<std::string> low_byte;
  if (text.size() == 4 && text[1] == '.') {
    if (const auto number = NumberOfThreeDigits(std::string{text[0], text[2], text[3]})) {
      const auto low = static_cast<std::uint8_t>(*number % 256);
      low_byte = *number < 256 ? ByteToText(low) : ByteToTwoDigits(low);
    }
  }
  return encoded_low_byte_.Answer(low_byte);
}

std::uint8_t EarnedRunAverageCodec::HighByte(std::string_view text) {
  return text <= "2.55" ? kEraMarker : kEraMarker + 1;
}

}  // namespace morlek

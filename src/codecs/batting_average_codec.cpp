#include "codecs/batting_average_codec.h"

#include <optional>

#include "codecs/average_word.h"
#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::uint8_t kBattingMarker = 0x30;

}  // namespace

CodecAnswer BattingAverageCodec::DecodeBattingAverage(std::string_view key) {
  std::optional<std::string> average;
  if (const auto number = NumberOfPairKey(key, kBattingMarker)) {
    average = ThreeDigits(*number).insert(0, 1, '.');
  }
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

}  // namespace morlek

#include "codecs/batting_average_codec.h"

#include <optional>

#include "codecs/average_word.h"
#include "codecs/hex_text.h"

namespace morlek {
namespace {

constexpr std::uint8_t kBattingMarker = 0x30;

}  // namespace

const std::string& BattingAverageCodec::DecodeBattingAverage(std::string_view key) {
  if (const auto number = NumberOfPairKey(key, kBattingMarker)) {
    decoded_average_ = ThreeDigits(*number).insert(0, 1, '.');
  }
  return decoded_average_;
}

const std::string& BattingAverageCodec::EncodeBattingAverage(std::string_view text) {
  if (text.starts_with('.')) {
    if (const auto number = NumberOfThreeDigits(text.substr(1))) {
      encoded_low_byte_ = ByteToTwoDigits(static_cast<std::uint8_t>(*number % 256));
    }
  }
  return encoded_low_byte_;
}

std::uint8_t BattingAverageCodec::HighByte(std::string_view text) {
  return text <= ".255" ? kBattingMarker : kBattingMarker + 1;
}

}  // namespace morlek

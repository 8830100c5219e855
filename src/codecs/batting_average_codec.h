#pragma once

#include <cstdint>
#include <string_view>

#include "codecs/codec_answer.h"

namespace morlek {

/// Batting averages from ".000" to ".511" as words of 0x3000 and up.
class BattingAverageCodec {
 public:
  /// The shown text of a pair key.
  CodecAnswer DecodeBattingAverage(std::string_view key);

  /// The byte text of the low byte of a shown text: a period and exactly three digits up to ".511".
  /// A larger one is unknown like any other text; the warning "A players batting average can not
  /// exceed .511." never reaches the screen.
  CodecAnswer EncodeBattingAverage(std::string_view text);

  /// The high byte that goes with a shown text, found by comparing texts and not numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  LastResult decoded_average_;
  LastResult encoded_low_byte_;
};

}  // namespace morlek

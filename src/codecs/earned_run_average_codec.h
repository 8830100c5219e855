#pragma once

#include <cstdint>
#include <string_view>

#include "codecs/codec_answer.h"

namespace morlek {

/// Earned run averages from "0.00" to "5.11" as words of 0x2000 and up.
class EarnedRunAverageCodec {
 public:
  /// The three digits of a pair key, without the point.
  CodecAnswer DecodeEarnedRunAverage(std::string_view key);

  /// The byte text of the low byte of a shown text ("3.45"). Up to "2.55" it has no leading zero,
  /// from "2.56" on it has two digits.
  CodecAnswer EncodeEarnedRunAverage(std::string_view text);

  /// The high byte that goes with a shown text, found by comparing texts and not numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  LastResult decoded_digits_;
  LastResult encoded_low_byte_;
};

}  // namespace morlek

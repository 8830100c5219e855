#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "codecs/codec_answer.h"

namespace morlek {

// Batting and earned run averages are two-byte words: a number from 0 to 511 above a marker in the
// high byte, which is the marker up to 255 and one more from 256 on.

/// The key by which both decoders look up a pair of bytes: the byte text of the low byte, then that
/// of the high byte. As it has no leading zeros, some pairs share a key.
[[nodiscard]] std::string PairKey(std::uint8_t low, std::uint8_t high);

/// Batting averages from ".000" to ".511" as words of 0x3000 and up.
class BattingAverageCodec {
 public:
  /// The shown text of a pair key.
  CodecAnswer DecodeBattingAverage(std::string_view key);

  /// The byte text of the low byte of a shown text: a period and exactly three digits up to ".511".
  /// A larger one is unknown like any other text; the warning "A players batting average can not
  /// exceed .511." never reaches the screen.
  CodecAnswer EncodeBattingAverage(std::string_view text);

  /// The high byte for a shown text, found by comparing texts instead of numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  LastResult decoded_average_;
  LastResult encoded_low_byte_;
};

/// Earned run averages from "0.00" to "5.11" as words of 0x2000 and up.
class EarnedRunAverageCodec {
 public:
  /// The three digits of a pair key, without the point.
  CodecAnswer DecodeEarnedRunAverage(std::string_view key);

  /// The byte text of the low byte of a shown text ("3.45"). Up to "2.55" it has no leading zero,
  /// from "2.56" on it has two digits.
  CodecAnswer EncodeEarnedRunAverage(std::string_view text);

  /// The high byte for a shown text, found by comparing texts instead of numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  LastResult decoded_digits_;
  LastResult encoded_low_byte_;
};

}  // namespace morlek

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morlek {

/// Batting averages from ".000" to ".511" as words of 0x3000 and up. Both directions keep their
/// last result for the whole run, and give it again for what they do not know.
class BattingAverageCodec {
 public:
  /// The shown text of a pair key; the previous result for a key outside the table.
  const std::string& DecodeBattingAverage(std::string_view key);

  /// The byte text of the low byte of a shown text; the previous result for a text that is not
  /// exactly a period and three digits up to ".511". Nobody is told of a larger one: the warning
  /// "A players batting average can not exceed .511." never reaches the screen.
  const std::string& EncodeBattingAverage(std::string_view text);

  /// The high byte that goes with a shown text, told by comparing texts and not numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  std::string decoded_average_;
  std::string encoded_low_byte_;
};

}  // namespace morlek

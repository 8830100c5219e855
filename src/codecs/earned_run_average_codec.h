#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morlek {

/// Earned run averages from "0.00" to "5.11" as words of 0x2000 and up. Both directions keep their
/// last result for the whole run, and give it again for what they do not know.
class EarnedRunAverageCodec {
 public:
  /// The three digits of a pair key, without the point; the previous result for a key outside the
  /// table.
  const std::string& DecodeEarnedRunAverage(std::string_view key);

  /// The byte text of the low byte of a shown text ("3.45"); the previous result for other texts.
  /// Up to "2.55" it has no leading zero, from "2.56" on it has two digits.
  const std::string& EncodeEarnedRunAverage(std::string_view text);

  /// The high byte that goes with a shown text, told by comparing texts and not numbers.
  [[nodiscard]] static std::uint8_t HighByte(std::string_view text);

 private:
  std::string decoded_digits_;
  std::string encoded_low_byte_;
};

}  // namespace morlek

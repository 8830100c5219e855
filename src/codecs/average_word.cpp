#include "codecs/average_word.h"

#include <algorithm>

#include "codecs/hex_text.h"

namespace morlek {

std::string PairKey(std::uint8_t low, std::uint8_t high) {
  return ByteToText(low) + ByteToText(high);
}

std::optional<int> NumberOfPairKey(std::string_view key, std::uint8_t marker) {
  constexpr std::size_t kHighDigits = 2;
  if (key.size() <= kHighDigits) return std::nullopt;
  const std::string_view low_text = key.substr(0, key.size() - kHighDigits);
  const auto low = HexDigitsToNumber(low_text);
  const auto high = HexDigitsToNumber(key.substr(low_text.size()));
  if (!low || *low > 0xFF || !high || *high < marker || *high > marker + 1U) return std::nullopt;

  const auto low_byte = static_cast<std::uint8_t>(*low);
  const auto high_byte = static_cast<std::uint8_t>(*high);
  if (PairKey(low_byte, high_byte) != key) return std::nullopt;
  return (high_byte - marker) * 256 + low_byte;
}

std::optional<int> NumberOfThreeDigits(std::string_view digits) {
  const auto is_digit = [](char character) { return character >= '0' && character <= '9'; };
  if (digits.size() != 3 || !std::ranges::all_of(digits, is_digit)) return std::nullopt;
  const int number = (digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0');
  if (number > kLargestAverage) return std::nullopt;
  return number;
}

std::string ThreeDigits(int number) {
  const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
  return {digit(number / 100), digit(number / 10), digit(number)};
}

}  // namespace morlek

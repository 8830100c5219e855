#include "codecs/hex_text.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "codecs/code_page.h"

namespace morlek {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kShortDigits = 4;
constexpr std::size_t kMostDigits = 8;

bool IsHexDigit(char character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
         (character >= 'a' && character <= 'f');
}

}  // namespace

std::string ByteToText(std::uint8_t byte) {
  return byte < kDigits.size() ? std::string(1, kDigits[byte]) : ByteToTwoDigits(byte);
}

std::string ByteToTwoDigits(std::uint8_t byte) {
  return {kDigits[byte / kDigits.size()], kDigits[byte % kDigits.size()]};
}

std::optional<std::uint32_t> HexDigitsToNumber(std::string_view digits) {
  if (digits.empty() || digits.size() > kMostDigits || !std::ranges::all_of(digits, IsHexDigit)) {
    return std::nullopt;
  }
  std::uint32_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  return value;
}

std::optional<std::int32_t> SignedHexToNumber(std::string_view digits) {
  const std::optional<std::uint32_t> value = HexDigitsToNumber(digits);
  if (!value) return std::nullopt;
  if (digits.size() > kShortDigits) return std::bit_cast<std::int32_t>(*value);
  return std::bit_cast<std::int16_t>(static_cast<std::uint16_t>(*value));
}

std::optional<std::int32_t> ByteTextToNumber(std::string_view text) {
  constexpr std::int32_t kWordValues = 65536;
  const std::optional<std::int32_t> value = SignedHexToNumber(text);
  if (value && *value < 0) return *value + kWordValues;
  return value;
}

std::optional<std::int32_t> Hex_to_Dec(std::string_view HexNum, MessagePort& messages) {
  if (!std::ranges::all_of(HexNum, IsHexDigit)) {
    messages.Show({UpperCase(HexNum) + " is Not a valid hexadecimal number", "Hex_to_Dec",
                   Message::Icon::kCritical});
    return 0;
  }
  return SignedHexToNumber(HexNum);
}

std::int64_t Hex_to_Unsigned(std::string_view text) {
  if (UpperCase(text.substr(0, 2)) == "&H") text.remove_prefix(2);
  if (text.size() > kMostDigits) text.remove_prefix(text.size() - kMostDigits);
  return HexDigitsToNumber(text).value_or(0);
}

}  // namespace morlek

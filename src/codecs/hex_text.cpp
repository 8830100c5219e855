#include "codecs/hex_text.h"

#include <bit>
#include <charconv>
#include <system_error>

namespace morlek {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kShortDigits = 4;
constexpr std::size_t kMostDigits = 8;

}  // namespace

bool IsHexDigit(char character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
         (character >= 'a' && character <= 'f');
}

std::string ByteToText(std::uint8_t byte) {
  return byte < kDigits.size() ? std::string(1, kDigits[byte]) : ByteToTwoDigits(byte);
}

std::string ByteToTwoDigits(std::uint8_t byte) {
  return {kDigits[byte / kDigits.size()], kDigits[byte % kDigits.size()]};
}

std::optional<std::uint32_t> HexDigitsToNumber(std::string_view digits) {
  const char* const end = digits.data() + digits.size();
  std::uint32_t value = 0;
  const auto parsed = std::from_chars(digits.data(), end, value, 16);
  if (parsed.ec != std::errc() || parsed.ptr != end || digits.size() > kMostDigits) {
    return std::nullopt;
  }
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

}  // namespace morlek

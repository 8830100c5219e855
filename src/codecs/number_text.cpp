#include "codecs/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>
#include <string>
#include <system_error>

#include "codecs/hex_text.h"

namespace morlek {
namespace {

std::string_view WithoutBlanksAround(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the digits in front off `text` and tells how many there were.
std::size_t TakeDigits(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  text.remove_prefix(count);
  return count;
}

/// Takes one of `characters` off the front of `text`; false when none stands there.
bool TakeOneOf(std::string_view& text, std::string_view characters) {
  if (text.empty() || characters.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

/// True for digits with at most one point and an exponent or none: the form without a sign.
bool IsUnsignedDecimal(std::string_view text) {
  std::size_t digits = TakeDigits(text);
  if (TakeOneOf(text, ".")) digits += TakeDigits(text);
  if (digits == 0) return false;
  if (TakeOneOf(text, "eE")) {
    TakeOneOf(text, "+-");
    if (TakeDigits(text) == 0) return false;
  }
  return text.empty();
}

/// The value of text in that form; nothing when it is too large.
std::optional<double> UnsignedDecimal(std::string_view text) {
  // Nearly all are short and whole; every key has a whole team encoded.
  std::uint32_t whole = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), whole);
  if (parsed.ec == std::errc() && parsed.ptr == text.data() + text.size()) return whole;

  double value = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc()) {
    return value;
  }
  // from_chars reports a value too near to zero like one too large; a stream reads it as zero.
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  if (stream >> value) return value;
  return std::nullopt;
}

}  // namespace

std::optional<double> TextToNumber(std::string_view text) {
  text = WithoutBlanksAround(text);
  if (text.starts_with("&H") || text.starts_with("&h")) return SignedHexToNumber(text.substr(2));

  const bool negative = text.starts_with('-');
  TakeOneOf(text, "+-");
  if (!IsUnsignedDecimal(text)) return std::nullopt;
  const std::optional<double> value = UnsignedDecimal(text);
  if (value && negative) return -*value;
  return value;
}

std::optional<std::uint8_t> TextToByte(std::string_view text) {
  constexpr double kLargest = 255;
  const std::optional<double> value = TextToNumber(text);
  if (!value) return std::nullopt;
  const double rounded = std::nearbyint(*value);
  if (rounded < 0 || rounded > kLargest) return std::nullopt;
  return static_cast<std::uint8_t>(rounded);
}

std::string NumberToText(double number) {
  constexpr double kShort = 1e9;
  constexpr int kSignificantDigits = 15;
  const auto whole = std::abs(number) < kShort ? static_cast<std::int32_t>(number) : 0;
  if (whole != 0 && number == whole) return std::to_string(whole);

  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                 std::chars_format::general, kSignificantDigits);
  return {buffer.data(), end.ptr};
}

}  // namespace morlek

#include "codecs/number_text.h"

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

/// The value of digits with at most one point and an exponent or none; nothing for any other text
/// and for a value that is too large.
std::optional<double> UnsignedDecimal(std::string_view text) {
  // The conversion itself takes signs and words like "inf" as well.
  if (text.find_first_of("0123456789.") != 0) return std::nullopt;
  const char* const end = text.data() + text.size();
  // Nearly all are short and whole; every key has a whole team encoded.
  std::uint32_t whole = 0;
  const auto parsed = std::from_chars(text.data(), end, whole);
  if (parsed.ec == std::errc() && parsed.ptr == end) return whole;

  double value = 0;
  const auto [parsed_end, error] = std::from_chars(text.data(), end, value);
  if (parsed_end != end) return std::nullopt;
  if (error == std::errc()) return value;
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
  if (negative || text.starts_with('+')) text.remove_prefix(1);
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

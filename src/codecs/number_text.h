#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Reads a number, with blanks around it or none: one sign in front, decimal digits with at most
/// one point, an exponent; or "&H" without a sign and hexadecimal digits as SignedHexToNumber reads
/// them, so that "&HFFFF" is -1. Nothing for any other text and for a number too large for a
/// double. Independent of the locale.
[[nodiscard]] std::optional<double> TextToNumber(std::string_view text);

/// The number rounded to the nearest whole (halves to even); nothing outside 0 to 255.
[[nodiscard]] std::optional<std::uint8_t> TextToByte(std::string_view text);

/// The number with at most 15 significant digits; a whole number has no point.
[[nodiscard]] std::string NumberToText(double number);

}  // namespace morlek

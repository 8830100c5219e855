#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Reads a decimal number: blanks around it, one sign in front, digits with at most one point, an
/// exponent; or "&H" and hexadecimal digits alone. Nothing for any other text and for a number too
/// large for a double. Independent of the locale.
[[nodiscard]] std::optional<double> TextToNumber(std::string_view text);

/// The number rounded to the nearest whole (halves to even); nothing outside 0 to 255.
[[nodiscard]] std::optional<std::uint8_t> TextToByte(std::string_view text);

/// The number with at most 15 significant digits; a whole number has no point.
[[nodiscard]] std::string NumberToText(double number);

}  // namespace morlek

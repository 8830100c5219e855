#pragma once

#include <cstddef>

/// Codes that have a picture.
namespace morlek::art {

/// Faces and bodies: high digit 0 to 5, low digit 0 to 7.
inline constexpr std::size_t kUpperCodeCount = 48;
/// Legs: high digit 0 or 1, low digit 0 to 4.
inline constexpr std::size_t kLegsCodeCount = 10;

[[nodiscard]] constexpr int HighDigit(int code) { return code / 16; }
[[nodiscard]] constexpr int LowDigit(int code) { return code % 16; }

[[nodiscard]] constexpr bool IsUpperCode(int code) {
  return code >= 0 && HighDigit(code) <= 5 && LowDigit(code) <= 7;
}
[[nodiscard]] constexpr bool IsLegsCode(int code) {
  return code >= 0 && HighDigit(code) <= 1 && LowDigit(code) <= 4;
}

/// The place of a face or body code in the order of codes, 0 to 47.
[[nodiscard]] constexpr std::size_t UpperCodeIndex(int code) {
  return static_cast<std::size_t>(8 * HighDigit(code) + LowDigit(code));
}
/// The place of a legs code in the order of codes, 0 to 9.
[[nodiscard]] constexpr std::size_t LegsCodeIndex(int code) {
  return static_cast<std::size_t>(5 * HighDigit(code) + LowDigit(code));
}

}  // namespace morlek::art

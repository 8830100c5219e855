#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// Batting and earned run averages are two-byte words: a number from 0 to 511 above a marker in the
/// high byte, which is the marker up to 255 and one more from 256 on.
inline constexpr int kLargestAverage = 511;

/// The text by which both decoders know a pair of bytes: the byte text of the low byte, then that
/// of the high byte. Without leading zeros some pairs share a key; the format has it so.
[[nodiscard]] std::string PairKey(std::uint8_t low, std::uint8_t high);

/// The number whose word has this key, for the high byte's marker; nothing when none has.
[[nodiscard]] std::optional<int> NumberOfPairKey(std::string_view key, std::uint8_t marker);

/// The number that `digits` of exactly three decimal digits show; nothing for other text and above
/// the largest average.
[[nodiscard]] std::optional<int> NumberOfThreeDigits(std::string_view digits);

/// The number, 0 to 511, in three decimal digits.
[[nodiscard]] std::string ThreeDigits(int number);

}  // namespace morlek

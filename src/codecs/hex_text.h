#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlek {

/// The byte in upper-case hexadecimal without leading zeros: "0", "5", "2C".
[[nodiscard]] std::string ByteToText(std::uint8_t byte);

/// The byte in two upper-case hexadecimal digits: "00", "05", "2C".
[[nodiscard]] std::string ByteToTwoDigits(std::uint8_t byte);

/// The unsigned value of one to eight hexadecimal digits of either case; nothing for any other
/// text.
[[nodiscard]] std::optional<std::uint32_t> HexDigitsToNumber(std::string_view digits);

/// The signed value of the digits: up to four are a 16-bit two's complement value, five to
/// eight a 32-bit one. Leading zeros count as digits. Nothing for any other text.
[[nodiscard]] std::optional<std::int32_t> SignedHexToNumber(std::string_view digits);

/// SignedHexToNumber with 65,536 added below zero: the conversion before every write to the image.
[[nodiscard]] std::optional<std::int32_t> ByteTextToNumber(std::string_view text);

/// Whether the character is a hexadecimal digit of either case.
[[nodiscard]] bool IsHexDigit(char character);

}  // namespace morlek

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "codecs/message_port.h"

namespace morlek {

/// The byte in upper-case hexadecimal without leading zeros: "0", "5", "2C".
[[nodiscard]] std::string ByteToText(std::uint8_t byte);

/// The byte in two upper-case hexadecimal digits: "00", "05", "2C".
[[nodiscard]] std::string ByteToTwoDigits(std::uint8_t byte);

/// What one to eight hexadecimal digits of either case say, unsigned; nothing for any other text.
[[nodiscard]] std::optional<std::uint32_t> HexDigitsToNumber(std::string_view digits);

/// What the digits say as a signed number: up to four are a 16-bit two's complement value, five to
/// eight a 32-bit one. Leading zeros count as digits. Nothing for any other text.
[[nodiscard]] std::optional<std::int32_t> SignedHexToNumber(std::string_view digits);

/// SignedHexToNumber with 65,536 added below zero: the conversion before every write to the image.
[[nodiscard]] std::optional<std::int32_t> ByteTextToNumber(std::string_view text);

/// SignedHexToNumber for text that a person gave: a character that is no hexadecimal digit is told
/// in a message, and the result is then 0. Nothing for an empty text or more than eight digits.
[[nodiscard]] std::optional<std::int32_t> Hex_to_Dec(std::string_view HexNum,
                                                     MessagePort& messages);

/// The unsigned value of the last eight digits, with or without "&H" in front; 0 for other text.
[[nodiscard]] std::int64_t Hex_to_Unsigned(std::string_view text);

}  // namespace morlek

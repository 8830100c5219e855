#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "editor/message_port.h"

namespace morlek {

// Routines of the program's toolbox. Nothing in the program calls them.

/// The signed value of hexadecimal digits that a person gave. Any other character is reported in a
/// message, and the result is then 0. Nothing for an empty text or more than eight digits.
[[nodiscard]] std::optional<std::int32_t> Hex_to_Dec(std::string_view HexNum,
                                                     MessagePort& messages);

/// The unsigned value of the last eight digits, with or without "&H" in front; 0 for other text.
[[nodiscard]] std::int64_t Hex_to_Unsigned(std::string_view text);

/// Field `intCommaNumber` (0 for the first) of a line of fields separated by commas, or
/// "NOT FOUND"; a negative number is taken for 1. The result is a part of the line itself. Field 0
/// is what stands before the first comma: throws std::invalid_argument when there is none.
[[nodiscard]] std::string_view CommaField(std::int16_t intCommaNumber, std::string_view strString);

}  // namespace morlek

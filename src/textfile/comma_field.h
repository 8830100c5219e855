#pragma once

#include <cstdint>
#include <string_view>

namespace morlek {

/// Field `intCommaNumber` (0 for the first) of a line of fields separated by commas, or
/// "NOT FOUND"; a negative number is taken for 1. What it gives is a part of the line itself. Field
/// 0 is what stands before the first comma: throws std::invalid_argument when there is none.
[[nodiscard]] std::string_view CommaField(std::int16_t intCommaNumber, std::string_view strString);

}  // namespace morlek

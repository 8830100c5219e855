#pragma once

#include <string>
#include <string_view>

#include "team/blocks.h"

namespace morlek {

/// A text of a column without what makes no difference to the image: in capitals, and a features
/// code without leading zeros.
[[nodiscard]] std::string CanonicalText(Column column, std::string_view text);

/// Whether two texts of a column stand for the same.
[[nodiscard]] bool IsSameText(Column column, std::string_view one, std::string_view other);

}  // namespace morlek

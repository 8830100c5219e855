#pragma once

#include <string>

#include "team/grid_columns.h"

namespace morlek {

/// What the cells of a column take so that SAVE keeps it, in words: "0 to 200".
[[nodiscard]] std::string AcceptedTexts(Column column, bool is_pitcher);

}  // namespace morlek

#pragma once

#include <string>

#include "team/blocks.h"

namespace morlek {

/// What the cells of a column take so that SAVE keeps it, in words: "0 to 200".
[[nodiscard]] std::string AcceptedTexts(Column column);

}  // namespace morlek

#pragma once

#include <optional>
#include <string>

#include "team/roster_grid.h"
#include "team/save_preview.h"

namespace morlek {

/// Why SAVE will not keep the text of a cell, in words without a period at their end: "Bt and Po
/// share a byte, and Po is not 1 to 9". `preview` was made of `grid` and shows the cell otherwise.
/// Nothing when there is no more to say than what the column takes (AcceptedTexts).
[[nodiscard]] std::optional<std::string> ReasonOfRefusal(const RosterGrid& grid,
                                                         const SavePreview& preview, Cell cell);

}  // namespace morlek

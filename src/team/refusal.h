#pragma once

#include <optional>
#include <string>

#include "team/roster_grid.h"
#include "team/save_preview.h"

namespace morlek {

/// The cell because of which SAVE will not keep another one that is good by itself: the name that
/// ends SAVE before it, or a cell that shares a byte with it. Nothing when the cell's own text is
/// what SAVE does not keep. `preview` was made of `grid`.
[[nodiscard]] std::optional<Cell> CauseElsewhere(const RosterGrid& grid, const SavePreview& preview,
                                                 Cell cell);

/// Why SAVE will not keep the text of a cell, in words without a period at their end: "Bt and Po
/// share a byte, and Po is not 1 to 9". The text comes to `fate`, because of `cause` if that is
/// there. Nothing when there is no more to say than what the column takes (AcceptedTexts).
[[nodiscard]] std::optional<std::string> ReasonOfRefusal(const std::string& text, Cell cell,
                                                         SavePreview::Fate fate,
                                                         std::optional<Cell> cause);

}  // namespace morlek

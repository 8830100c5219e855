#pragma once

#include <optional>

#include "league/season.h"
#include "textfile/delimited_text.h"

namespace morlek {

/// Reads the table of a season. Columns are found by their headers, in any order; a column, a line
/// or a text that is missing says nothing. Averages get the form of their column. When the text is
/// no such table, adds to `complaints` why, each sentence with the number of its line, and gives
/// nothing. Throws what the source throws. Memory stays bounded whatever the text.
[[nodiscard]] std::optional<Season> ReadSeason(const CharacterSource& source,
                                               Complaints& complaints);

}  // namespace morlek

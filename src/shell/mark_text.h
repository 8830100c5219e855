#pragma once

#include <QString>

#include "editor/grid_marks.h"

namespace morlek {

/// What the tip of a cell says of its marks; empty for a cell without any.
[[nodiscard]] QString TipOf(const GridMarks& marks, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when all
/// is well.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// The player of a row, 0 to 24, in words: "batter 3", "pitcher 10".
[[nodiscard]] QString PlayerOf(int row);

}  // namespace morlek

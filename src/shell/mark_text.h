#pragma once

#include <QString>

#include "editor/grid_marks.h"

namespace morlek {

/// What the tip of a cell says of its marks; empty for a cell without any.
[[nodiscard]] QString TipOf(const GridMarks& marks, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when all
/// is well.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// A text as a tool tip shows it to the letter: Qt would take some texts for marked-up ones.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace morlek

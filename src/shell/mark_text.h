#pragma once

#include <QString>

#include "editor/grid_marks.h"

namespace morlek {

/// The tip that explains the marks of a cell; empty for a cell without marks.
[[nodiscard]] QString TipOf(const GridMarks& marks, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when both
/// are zero.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// A text in the form in which a tool tip shows it literally: Qt would take some texts for markup.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace morlek

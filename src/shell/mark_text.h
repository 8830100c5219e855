#pragma once

#include <QString>

#include "editor/editor_state.h"

namespace morlek {

/// The tip that explains the marks of a cell; empty for a cell without marks.
[[nodiscard]] QString TipOf(const GridMarks& marks, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when both
/// are zero.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// How many changes the last step has left unsaved, and how to go back, in words; empty when it has
/// left none.
[[nodiscard]] QString LeftBehindText(const EditorState& state);

/// A text in the form in which a tool tip shows it literally: Qt would take some texts for markup.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace morlek

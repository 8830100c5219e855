#pragma once

#include <QString>

#include "editor/editor_state.h"

namespace morlek {

/// The tip that explains the marks of a cell: what SAVE does, why, what the column takes, and what
/// the image holds; empty for a cell without marks.
[[nodiscard]] QString TipOf(const EditorState& state, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when both
/// are zero.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// What a person should know of the last step, in words; empty when there is nothing to report.
[[nodiscard]] QString NoteOf(const EditorState& state);

/// The details of that note, a paragraph with a line break at its end; empty when there are none.
[[nodiscard]] QString DetailsOf(const EditorState& state);

/// A text in the form in which a tool tip shows it literally: Qt would take some texts for markup.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace morlek

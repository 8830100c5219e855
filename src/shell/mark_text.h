#pragma once

#include <QString>

#include "editor/editor_state.h"

namespace morlek {

/// What the tip of a cell says of its marks; empty for a cell without any.
[[nodiscard]] QString TipOf(const GridMarks& marks, Cell cell);

/// How many changes are not saved and how many cells SAVE will not keep, in words; empty when all
/// is well.
[[nodiscard]] QString SummaryOf(const GridMarks& marks);

/// What a person should know of the last step, in words; empty when there is nothing to say.
[[nodiscard]] QString NoteOf(const EditorState& state);

/// More about that, a paragraph with a line break behind it; empty when there is no more to say.
[[nodiscard]] QString DetailsOf(const EditorState& state);

/// A text as a tool tip shows it to the letter: Qt would take some texts for marked-up ones.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace morlek

#pragma once

#include <QString>

#include "editor/editor_state.h"

class QDropEvent;

namespace morlek {

/// What a drag over the window says before it is dropped.
struct DropText {
  QString words;  // empty when there is nothing to say, as for texts
  bool is_taken = false;
};

/// What dropping would do, or why it would do nothing. The drag has been answered: whoever is under
/// the pointer has accepted it or not.
[[nodiscard]] DropText DropTextOf(const QDropEvent& drag, const EditorState& state);

}  // namespace morlek

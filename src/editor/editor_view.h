#pragma once

#include <string_view>

#include "team/team_loader.h"

namespace morlek {

/// What the editor asks of the window in the course of its steps.
class EditorView : public TeamView {
 public:
  /// Shows the identity byte of the file that was checked last, as hexadecimal text.
  virtual void ShowIdentity(std::string_view byte_text) = 0;

  /// Shows the team buttons of an image that has just become the current one.
  virtual void ShowToolbar() = 0;

  /// Hides the grid, and SAVE with it, until a team is loaded.
  virtual void HideRoster() = 0;

  /// Sets the narrow layout.
  virtual void ShowNarrow() = 0;

  /// Shows the marks of the grid afresh, which a save has just changed.
  virtual void RefreshMarks() = 0;
};

}  // namespace morlek

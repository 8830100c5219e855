#pragma once

#include <QWidget>
#include <array>

#include "team/blocks.h"

namespace morlek {

class StanceChooser;
class StanceView;
struct EditorState;
struct StateChange;

/// The part of the window to the right of the grid: the face, body and legs choosers, one of them
/// in view at a time, and the player of the stance row put together in his club's colours.
class StancePanel : public QWidget {
  Q_OBJECT

 public:
  /// No chooser is in view at first.
  explicit StancePanel(QWidget* parent);

  /// Shows the current state.
  void Show(const EditorState& state);

 signals:
  /// A picture of this features column was clicked; the text is its code.
  void Picked(Column feature, const std::string& code_text);

 private:
  void AddChooser(std::size_t place);

  std::array<StanceChooser*, kFeatures.size()> choosers_{};
  StanceView* view_ = nullptr;
};

}  // namespace morlek

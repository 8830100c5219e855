#pragma once

#include <QLabel>

namespace morlek {

struct EditorState;

/// What the window without an image adds in a small voice to what to do next: that an image can be
/// dropped, and why the file that was chosen last is not shown.
class HintNote : public QLabel {
  Q_OBJECT

 public:
  /// Stands in an area of its parent; hidden at first.
  HintNote(const QRect& area, QWidget* parent);

  void Show(const EditorState& state);
};

}  // namespace morlek

#pragma once

#include <QLabel>

namespace morlek {

struct EditorState;

/// The line at the foot of the window: the file name of the image, and what SAVE would do.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the file name of the image (its whole path in the tool tip), truncated if necessary,
  /// followed by the counts of marks. Without an image the line is empty.
  void Show(const EditorState& state);
};

}  // namespace morlek

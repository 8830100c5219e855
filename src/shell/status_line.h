#pragma once

#include <QLabel>

namespace morlek {

struct EditorState;

/// The line at the foot of the window: the file name of the image, and how things stand with SAVE.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  /// Shows the file name of the image (its whole path in the tool tip), shortened where it has to
  /// be, behind it what came of the last step, and how things stand. A screen reader is alerted
  /// when that changes.
  void Show(const EditorState& state);

 private:
  QString said_;
};

}  // namespace morlek

#pragma once

#include <QFrame>
#include <QPointer>

class QPlainTextEdit;

namespace morlek {

/// The help text over the grid; a double-click on it with the left button is the only way to close
/// it. Hidden at first.
class HelpPane : public QFrame {
  Q_OBJECT

 public:
  /// The pane covers the grid area of its parent, which is visible, and all that stands there.
  explicit HelpPane(QWidget* parent);

  /// Shows the pane and gives it the keyboard, so that it can be scrolled; does nothing if it is
  /// shown already. When it is closed, the focus goes back to where it was, if that is still
  /// visible.
  void Open();

 signals:
  /// The pane now covers the grid and the toolbar, or no longer does.
  void Covered(bool covered);

  /// A key moved the cursor to a line whose middle is at this height of the pane, in logical
  /// pixels.
  void LineReached(int middle);

 private:
  void Close();

  QPlainTextEdit* text_;
  QPointer<QWidget> focused_before_;
};

}  // namespace morlek

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
  /// The pane covers the grid area of its parent.
  explicit HelpPane(QWidget* parent);

  /// Shows the pane and gives it the keyboard, so that it can be scrolled; shown already, it stays.
  /// When it is closed, the focus goes back where it was, if that is still in sight.
  void Open();

 signals:
  /// The pane now covers the grid and the toolbar, or does so no more.
  void Covered(bool covered);

  /// A key moved the cursor to a line with its middle at this height of the pane.
  void LineReached(int middle);

 private:
  void Close();

  QPlainTextEdit* text_;
  QPointer<QWidget> focused_before_;
};

}  // namespace morlek

#pragma once

#include <QFrame>
#include <QPointer>

class QPlainTextEdit;

namespace morlek {

/// The help text over the grid; a double-click on it is the only way to close it.
class HelpPane : public QFrame {
  Q_OBJECT

 public:
  explicit HelpPane(QWidget* parent);

  /// Shows the pane and gives it the keyboard, so that it can be scrolled; shown already, it stays.
  void Open();

 signals:
  /// The pane now covers the grid and the toolbar, or does so no more.
  void Covered(bool covered);

 private:
  void AddText();
  void Close();

  // Null until the pane is first opened: the window need not wait for its text.
  QPlainTextEdit* text_ = nullptr;
  QPointer<QWidget> focused_before_;
};

}  // namespace morlek

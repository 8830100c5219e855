#pragma once

#include <QLabel>

#include "editor/editor.h"
#include "shell/drop_text.h"

namespace morlek {

/// While a file is dragged over the window: a frame around its content, and in the middle what
/// dropping it would do. It watches the drag and has no part in it: who takes what stays the same,
/// and what nobody takes has a reason to show.
class DropGuide : public QLabel {
  Q_OBJECT

 public:
  /// Covers `content`, a child of its window, which stands on the screen. The editor outlives it.
  DropGuide(const Editor& editor, const QWidget& content);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowFor(const QDropEvent& drag);

  const Editor& editor_;
  const QWidget& content_;
  DropText shown_;
};

}  // namespace morlek

#pragma once

#include <QLabel>

namespace morlek {

struct EditorState;

/// What the window shows while there is no team: the program's icon, and below it what to do next.
class HintLabel : public QLabel {
  Q_OBJECT

 public:
  /// Stands in the middle of an area of its parent.
  HintLabel(const QRect& area, QWidget* parent);

  /// Says how to open an image, or, once there is one, how to pick a team; clicking the words does
  /// nothing then. Gone while a team is shown.
  void Show(const EditorState& state);

 signals:
  /// The words that say how to open an image, or the icon above them, were clicked.
  void OpenRequested();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Say(const QString& words);

  bool asks_for_image_ = true;
};

}  // namespace morlek

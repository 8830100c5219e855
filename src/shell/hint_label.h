#pragma once

#include <QLabel>

namespace morlek {

/// What the window shows while there is no team: the program's icon, and below it what to do next.
class HintLabel : public QLabel {
  Q_OBJECT

 public:
  /// Stands in the middle of an area of its parent, and says how to open an image.
  HintLabel(const QRect& area, QWidget* parent);

  /// Shows how to pick a team, from now on; pressing the words does nothing any more.
  void AskForTeam();

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

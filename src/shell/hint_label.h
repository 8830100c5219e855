#pragma once

#include <QLabel>

namespace morlek {

struct EditorState;

/// What the window shows while there is no team: the program's icon, and below it what to do next.
class HintLabel : public QLabel {
  Q_OBJECT

 public:
  /// Centers itself in an area of its parent, in logical pixels.
  HintLabel(const QRect& area, QWidget* parent);

  /// Shows how to open an image or, once there is one, how to pick a team; a click does nothing
  /// then. Hidden while a team is shown.
  void Show(const EditorState& state);

 signals:
  /// The words that say how to open an image, or the icon above them, were clicked.
  void OpenRequested();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Asks for an image, else for a team.
  void Ask(bool for_image);
  [[nodiscard]] bool AsksForImage() const;
};

}  // namespace morlek

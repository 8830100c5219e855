#pragma once

#include <QFocusFrame>
#include <QPointer>

namespace morlek {

class RosterBox;

/// A ring in the accent colour around the box of a grid that has the focus, above its neighbours;
/// hidden when no box has it. A child of the widget that holds the boxes, made after them. Mouse,
/// drops and assistive tools reach the box through it.
class FocusRing : public QFocusFrame {
  Q_OBJECT

 public:
  explicit FocusRing(QWidget* grid);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow(QWidget* focused);

  // The box with the focus, or null.
  QPointer<const RosterBox> box_;
};

}  // namespace morlek

#pragma once

#include <QAbstractButton>

namespace morlek {

/// A button with a mark, which a screen reader reports as "checked". The mark shows a state of the
/// program, so pressing the button alone does not change it.
class MarkedButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit MarkedButton(QWidget* parent);

  [[nodiscard]] bool is_marked() const { return is_marked_; }
  void SetMarked(bool marked);

 private:
  bool is_marked_ = false;
};

}  // namespace morlek

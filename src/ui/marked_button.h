#pragma once

#include <QAbstractButton>

namespace morlek {

/// A button that can bear a mark, which a screen reader knows as "checked". The mark shows a
/// state of the program, so pressing the button does not change it by itself.
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

#pragma once

#include <QPushButton>

namespace morlek {

/// The push button that does what the window is for. While there is something left to do it is
/// filled with the accent colour and has a dot behind its caption, else it is outlined.
class FilledButton : public QPushButton {
  Q_OBJECT

 public:
  FilledButton(const QString& caption, QWidget* parent);

  [[nodiscard]] bool is_filled() const { return is_filled_; }
  void SetFilled(bool filled);

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool is_filled_ = false;
};

}  // namespace morlek

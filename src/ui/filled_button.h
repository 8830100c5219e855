#pragma once

#include <QPushButton>

namespace morlek {

/// A push button for the main action of a window. While there is something left to do it is filled
/// with the accent colour and has a dot behind its caption; otherwise it is outlined.
class FilledButton : public QPushButton {
  Q_OBJECT

 public:
  FilledButton(const QString& caption, QWidget* parent);

  /// Shows whether there is something left to do.
  void SetFilled(bool filled);

  [[nodiscard]] bool is_filled() const { return is_filled_; }

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool is_filled_ = false;
};

}  // namespace morlek

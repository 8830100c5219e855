#pragma once

#include <QPushButton>

namespace morlek {

/// A push button filled with the accent colour: the one that does what the window is for.
class FilledButton : public QPushButton {
  Q_OBJECT

 public:
  FilledButton(const QString& caption, QWidget* parent);

  /// A dot behind the caption shows that there is something left to do.
  void SetDotted(bool dotted);

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool is_dotted_ = false;
};

}  // namespace morlek

#pragma once

#include <QPushButton>

namespace morlek {

/// A push button filled with the accent colour, for the main action of a window.
class FilledButton : public QPushButton {
  Q_OBJECT

 public:
  FilledButton(const QString& caption, QWidget* parent);

  /// Shows or hides a dot behind the caption, which means that there is something left to do.
  void SetDotted(bool dotted);

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool is_dotted_ = false;
};

}  // namespace morlek

#pragma once

#include <QPushButton>

namespace morlek {

/// A push button filled with the accent colour: the one that does what the window is for.
class FilledButton : public QPushButton {
  Q_OBJECT

 public:
  FilledButton(const QString& caption, QWidget* parent);
};

}  // namespace morlek

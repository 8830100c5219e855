#include "shell/filled_button.h"

#include "shell/theme.h"

namespace morlek {

FilledButton::FilledButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  QPalette colors = palette();
  colors.setColor(QPalette::Button, theme::kAccent);
  colors.setColor(QPalette::ButtonText, theme::kBase);
  setPalette(colors);
}

}  // namespace morlek

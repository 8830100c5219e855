#include "shell/theme.h"

#include <QFontDatabase>

namespace morlek::theme {

QPalette Palette() {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, const QColor& color) {
    palette.setColor(QPalette::All, role, color);
  };
  set(QPalette::Window, kWindow);
  set(QPalette::WindowText, kText);
  set(QPalette::Base, kBase);
  set(QPalette::AlternateBase, kOddRow);
  set(QPalette::Text, kText);
  set(QPalette::PlaceholderText, kFaintText);
  set(QPalette::Button, kBase);
  set(QPalette::ButtonText, kText);
  set(QPalette::BrightText, kBase);
  set(QPalette::ToolTipBase, kText);
  set(QPalette::ToolTipText, kBase);
  set(QPalette::Highlight, kAccent);
  set(QPalette::HighlightedText, kBase);
  set(QPalette::Link, kAccent);
  set(QPalette::LinkVisited, kAccent);
  set(QPalette::Light, kBase);
  set(QPalette::Midlight, kHeaderBand);
  set(QPalette::Mid, kLine);
  set(QPalette::Dark, kFaintText);
  set(QPalette::Shadow, kHeaderText);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, kFaintText);
  }
  return palette;
}

void LoadFonts() {
  QFontDatabase::addApplicationFont(":/fonts/Roboto-Regular.ttf");
  QFontDatabase::addApplicationFont(":/fonts/Roboto-Bold.ttf");
}

QFont Font(int pixel_size, QFont::Weight weight) {
  QFont font("Roboto");
  font.setPixelSize(pixel_size);
  font.setWeight(weight);
  return font;
}

}  // namespace morlek::theme

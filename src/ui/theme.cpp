#include "ui/theme.h"

#include <QFontDatabase>

namespace morlek::theme {

const Shades& ShadesOf(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
                 palette.color(QPalette::WindowText).lightness()
             ? kDark
             : kLight;
}

QPalette PaletteOf(const Shades& shades) {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, const QColor& color) {
    palette.setColor(QPalette::All, role, color);
  };
  set(QPalette::Window, shades.window);
  set(QPalette::WindowText, shades.text);
  set(QPalette::Base, shades.base);
  set(QPalette::AlternateBase, shades.odd_row);
  set(QPalette::Text, shades.text);
  set(QPalette::PlaceholderText, shades.faint_text);
  set(QPalette::Button, shades.base);
  set(QPalette::ButtonText, shades.text);
  set(QPalette::BrightText, shades.on_fill);
  set(QPalette::ToolTipBase, shades.tip);
  set(QPalette::ToolTipText, shades.tip_text);
  set(QPalette::Highlight, shades.fill);
  set(QPalette::HighlightedText, shades.on_fill);
  set(QPalette::Link, shades.accent);
  set(QPalette::LinkVisited, shades.accent);
  set(QPalette::Light, shades.base);
  set(QPalette::Midlight, shades.header_band);
  set(QPalette::Mid, shades.line);
  set(QPalette::Dark, shades.faint_text);
  set(QPalette::Shadow, shades.header_text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, shades.faint_text);
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

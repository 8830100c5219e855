#include "shell/look.h"

#include <QApplication>

#include "shell/art/title_art.h"
#include "shell/painted_icon.h"
#include "shell/style.h"
#include "shell/theme.h"

namespace morlek {

void ApplyLook() {
  constexpr int kFontPixels = 12;
  QApplication::setStyle(new Style);
  QApplication::setPalette(theme::Palette());
  theme::LoadFonts();
  QApplication::setFont(theme::Font(kFontPixels));
  QApplication::setWindowIcon(MakePaintedIcon(PaintAppIcon));
}

}  // namespace morlek

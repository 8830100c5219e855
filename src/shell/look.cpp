#include "shell/look.h"

#include <QApplication>

#include "art/title_art.h"
#include "ui/painted_icon.h"
#include "ui/style.h"
#include "ui/theme.h"

namespace morlek {
namespace {

/// Painted once for all windows, in the sizes that task bars and window lists use.
QIcon AppIcon() {
  const QIcon painted = MakePaintedIcon(PaintAppIcon);
  QIcon icon;
  for (const int side : {16, 32, 48, 64}) icon.addPixmap(painted.pixmap({side, side}, 1));
  return icon;
}

}  // namespace

void ApplyLook() {
  QApplication::setStyle(new Style);
  theme::LoadFonts();
  QApplication::setFont(theme::Font(theme::kFontPixels));
  QApplication::setWindowIcon(AppIcon());
}

}  // namespace morlek

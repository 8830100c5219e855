#include <QAbstractButton>

#include "shell/eye.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr double kReadable = 4.5;
constexpr double kPlain = 3;  // for pictures, and strokes thinner than a pixel

/// What must be told apart from what it stands on.
struct Legible {
  const char* what;
  QColor theme::Shades::*ink;
  std::vector<QColor theme::Shades::*> grounds;
  double least = kReadable;
};

TEST(ShadesTest, EveryTextCanBeReadAndEveryLineThatTellsSomethingBeSeen) {
  using S = theme::Shades;
  const std::vector<QColor S::*> boxes = {&S::base, &S::odd_row, &S::focus_row, &S::stance_row};
  const std::vector<Legible> table = {
      {"text", &S::text, boxes},
      {"text of windows", &S::text, {&S::window, &S::hover}},
      {"text not saved", &S::accent, boxes},
      {"link", &S::accent, {&S::window, &S::base}},
      {"head", &S::header_text, {&S::header_band, &S::window}},
      {"faint text", &S::faint_text, {&S::window, &S::base}},
      {"selection, SAVE", &S::on_fill, {&S::fill, &S::critical}},
      {"tip", &S::tip_text, {&S::tip}},
      {"name at a picture", &S::tile_text, {&S::tile}},
      {"code of a picture", &S::tile_faint_text, {&S::tile}},
      {"code of the marked picture", &S::marked_tile_text, {&S::marked_tile}},
      {"ring of the focus", &S::accent, {&S::base, &S::focus_row, &S::stance_row}, kPlain},
      {"ring of a picked team or picture", &S::accent, {&S::window, &S::hover}, kPlain},
      {"ring under the pointer", &S::hover_ring, {&S::window, &S::hover}, kPlain},
      {"red corner", &S::lossy_mark, boxes, kPlain},
      {"bar of a selected text that is not saved", &S::on_fill, {&S::fill}, kPlain},
      {"mark of the player in view", &S::stance_mark, {&S::window}, kPlain},
      {"handle of a scroll bar", &S::faint_text, {&S::header_band}, kPlain},
      {"SAVE itself", &S::fill, {&S::window}, kPlain}};
  for (const theme::Shades& shades : {theme::kLight, theme::kDark}) {
    for (const Legible& row : table) {
      for (const auto ground : row.grounds) {
        EXPECT_GE(Contrast(shades.*row.ink, shades.*ground), row.least)
            << row.what << ", " << (shades.*row.ink).name().toStdString() << " on "
            << (shades.*ground).name().toStdString();
      }
    }
  }
}

TEST(SplashTest, StaysUntilAKeyOrAClickOnThePicture) {
  SplashWindow splash;
  int dismissed = 0;
  QObject::connect(&splash, &SplashWindow::Dismissed, [&] { ++dismissed; });
  splash.show();
  EXPECT_EQ(splash.windowTitle(), "Form2");
  EXPECT_EQ(splash.accessibleName(), "MORLEK EDITOR");
  QTest::keyClick(&splash, Qt::Key_Space);
  EXPECT_EQ(dismissed, 1);
  QTest::mouseClick(splash.findChild<QAbstractButton*>(), Qt::LeftButton);
  EXPECT_EQ(dismissed, 2);
}

}  // namespace
}  // namespace morlek

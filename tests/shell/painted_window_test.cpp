#include <QAbstractButton>

#include "shell/eye.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr double kReadable = 4.5;
constexpr double kPlain = 3;  // for pictures, and strokes thinner than a pixel

class PaintedWindowTest : public WindowTest {
 protected:
  /// The player put together, as he is seen below the faces and bodies.
  [[nodiscard]] QImage Figure() const { return Seen(Find("StanceView")).copy(2, 3, 76, 97); }
};

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
  QTest::keyClick(&splash, Qt::Key_Space);
  EXPECT_EQ(dismissed, 1);
  QTest::mouseClick(splash.findChild<QAbstractButton*>(), Qt::LeftButton);
  EXPECT_EQ(dismissed, 2);
}

TEST_F(PaintedWindowTest, TheStanceShowsEachPieceOfItsRowInTheColorsOfTheTeam) {
  StartWithTeam();
  Box(12, 2).setFocus();
  const auto figure = [this](const QStringList& codes, int row = 2) {
    for (int column = 12; column <= 14; ++column) Box(column, row).setText(codes[column - 12]);
    return Figure();
  };
  EXPECT_EQ(ColorsOf(figure({"", "", ""})).size(), 1U);
  const QImage unknown = figure({"zz", "", ""});
  EXPECT_EQ(figure({"F0", "", ""}), unknown);
  EXPECT_GT(ColorsOf(unknown).size(), 1U) << "seen to be so";
  EXPECT_EQ(figure({"FFFF0003", "", ""}), figure({"3", "", ""})) << "what SAVE makes of it";
  const QImage player = figure({"3", "57", "14"});
  EXPECT_EQ(figure({"", "", "0"}, 3), player) << "another row";
  for (const int column : {1, 2, 3}) {
    const QImage before = Seen(Find("StanceView"));
    Box(column, 3).setText("77");
    EXPECT_EQ(Seen(Find("StanceView")), before);
    Box(column, 2).setText("77");
    EXPECT_NE(Seen(Find("StanceView")), before) << column;
  }
  Click("Orioles");
  EXPECT_NE(figure({"3", "57", "14"}), player);
  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_NE(Figure(), player) << "still that of the team in the title";
  PutFile(ImageFile(), Sample());
  Click("Braves");
  Box(12, 2).setFocus();
  EXPECT_EQ(figure({"3", "57", "14"}), player);
}

TEST_F(PaintedWindowTest, APickGoesToTheStanceRowAndMovesNothing) {
  StartWithTeam();
  // Before any visit it is the first row.
  Find("Frame3").show();
  Click("Picture2(47)");
  EXPECT_EQ(Box(13, 0).text(), "57");

  QLineEdit& box = Box(12, 17);
  box.setFocus();
  Click("Picture1(36)");
  box.deselect();
  Click("Picture1(36)");
  EXPECT_EQ(box.selectedText(), "3") << "also where the text stays the same";
  Box(1, 9).setFocus();
  Box(1, 9).setSelection(1, 2);
  Click("Picture1(0)");
  EXPECT_EQ(box.text(), "0");
  EXPECT_EQ(Box(1, 9).selectionLength(), 2) << "another box keeps its selection";
  Choose("mnuMorlekHELP");
  Click("Picture1(12)");
  EXPECT_EQ(box.text(), "1") << "beside the help";
  CloseHelp();
  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_FALSE(IsShown("Frame1"));
  Click("Picture1(24)");
  EXPECT_EQ(box.text(), "2") << "in view also after a load that failed";
}

}  // namespace
}  // namespace morlek

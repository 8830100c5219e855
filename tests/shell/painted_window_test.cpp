#include <QAbstractButton>
#include <QMenuBar>
#include <set>

#include "shell/eye.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"
#include "ui/style.h"
#include "ui/theme.h"

namespace morlek {
namespace {

constexpr double kReadable = 4.5;
constexpr double kPlain = 3;  // for pictures, and strokes thinner than a pixel
constexpr QColor kAccent(0x1f, 0x5f, 0xd0);
constexpr QColor kBravesNavy(0x13, 0x27, 0x4f);
constexpr QColor kOriolesOrange(0xd2, 0x42, 0x00);

/// How much of a bat there is in a picture, of which only the wood in the light counts.
int WoodIn(const QImage& picture) { return CountOf(picture, QColor(0xe0, 0xab, 0x66), 12); }

/// A features column and the texts of its pictures, by their index; "-" where none stands.
struct Chooser {
  int column;
  const char* pictures;
  const char* texts;
};
constexpr char kSkinCodes[] =
    "0 4 10 14 20 24 30 34 40 44 50 54 1 5 11 15 21 25 31 35 41 45 51 55 "
    "2 6 12 16 22 26 32 36 42 46 52 56 3 7 13 17 23 27 33 37 43 47 53 57";
constexpr std::array<Chooser, 3> kChoosers = {
    {{12, "Picture1", kSkinCodes},
     {13, "Picture2", kSkinCodes},
     {14, "Picture3",
      "0 4 13 - - - - - - - - - 1 10 14 - - - - - - - - - 2 11 - - - - - - - - - - "
      "3 12"}}};

class PaintedWindowTest : public WindowTest {
 protected:
  struct Tile {
    QAbstractButton* button;
    QString text;
    QImage seen;
  };
  /// The tiles of a chooser, from one look at the window.
  [[nodiscard]] std::vector<Tile> TilesOf(const Chooser& chooser) const {
    const QImage all = Seen(*window);
    const QStringList texts = QString(chooser.texts).split(' ');
    std::vector<Tile> tiles;
    for (int index = 0; index < texts.size(); ++index) {
      if (texts[index] == "-") continue;
      auto& tile = Find<QAbstractButton>(QString("%1(%2)").arg(chooser.pictures).arg(index));
      tiles.push_back(
          {&tile, texts[index], all.copy({tile.mapTo(window.get(), QPoint(0, 0)), tile.size()})});
    }
    return tiles;
  }

  /// The player put together, as he is seen below the faces and bodies.
  [[nodiscard]] QImage Figure() const { return Seen(Find("StanceView")).copy(2, 3, 76, 97); }

  [[nodiscard]] double ContrastOf(const QString& name, int margin = 3) const {
    const QImage seen = Seen(Find(name));
    return ContrastIn(seen.copy(seen.rect().adjusted(margin, margin, -margin, -margin)));
  }
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

TEST_F(PaintedWindowTest, TextStandsOutFromItsGroundAlsoAfterTheDesktopHasTurnedDark) {
  Start(std::nullopt);
  const QImage hint = Seen(Find("labelHint"));
  EXPECT_GE(ContrastIn(hint.copy(0, hint.height() - 24, hint.width(), 24)), kReadable);
  ChooseWith("mnuOpen", ImagePath());
  Click("Braves");
  TypeInto(3, 14, "77");
  const auto expect_readable = [this](bool dark) {
    const auto expect = [dark](const QImage& seen, const char* what) {
      EXPECT_GE(ContrastIn(seen), kReadable) << what << dark;
      EXPECT_EQ(GroundOf(seen).lightness() < 128, dark) << what;
    };
    const auto inside = [this](const char* name, int margin = 3) {
      const QImage seen = Seen(Find(name));
      return seen.copy(seen.rect().adjusted(margin, margin, -margin, -margin));
    };
    expect(Seen(*window->menuBar()).copy(0, 0, 112, 20), "menu bar");
    Box(1, 0).setFocus();
    for (const char* name : {"Label4(0)", "Label4(1)", "Label4(28)", "Text1(1)", "Text3(14)",
                             "Text14(24)", "Label3", "labelStatus"}) {
      expect(inside(name, name[0] == 'T' ? 3 : 0), name);
    }
    // Without the dot, which can be seen whatever the word looks like.
    EXPECT_GE(ContrastIn(Seen(Find("Command1")).copy(59, 5, 18, 15)), kReadable);
    const QPalette colors = QApplication::palette();
    EXPECT_GE(Contrast(colors.color(QPalette::ToolTipText), colors.color(QPalette::ToolTipBase)),
              kReadable);
    EXPECT_GE(ContrastIn(Seen(Box(1, 0)).copy(6, 6, 30, 9)), kReadable) << "selected text";
    Box(12, 0).setFocus();
    expect(inside("Label1", 0), "title of the choosers");
    EXPECT_GE(ContrastIn(Seen(Find("StanceView")).copy(104, 30, 90, 40)), kReadable);
    EXPECT_GE(ContrastIn(Seen(Find("Picture1(47)")).copy(37, 29, 11, 10)), kPlain);
    Choose("mnuMorlekHELP");
    expect(inside("Text15"), "help");
    CloseHelp();
  };
  expect_readable(false);
  for (const bool dark : {true, false}) {
    QApplication::setPalette(dark ? theme::PaletteOf(theme::kDark) : QPalette());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return (GroundOf(Seen(*window->menuBar())).lightness() < 128) == dark; }));
    expect_readable(dark);
  }

  QPalette desktop(QColor(0x30, 0x30, 0x30));
  Style().polish(desktop);
  EXPECT_EQ(desktop, theme::PaletteOf(theme::kDark)) << "what a dark desktop hands out";
}

TEST(SplashTest, ReadsWellAndStaysUntilAKeyOrAClickOnThePicture) {
  SplashWindow splash;
  int dismissed = 0;
  QObject::connect(&splash, &SplashWindow::Dismissed, [&] { ++dismissed; });
  splash.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&splash));
  EXPECT_GE(ContrastIn(Seen(splash)), kReadable);
  EXPECT_EQ(splash.windowTitle(), "Form2");
  QTest::keyClick(&splash, Qt::Key_Space);
  EXPECT_EQ(dismissed, 1);
  QTest::mouseClick(splash.findChild<QAbstractButton*>(), Qt::LeftButton);
  EXPECT_EQ(dismissed, 2);
}

TEST_F(PaintedWindowTest, NoTwoPicturesAreAlikeAndAPickPutsItsCodeAndMarksItsTileAlone) {
  StartWithTeam();
  std::vector<QImage> pictures;
  for (const auto* button : Find("Toolbar1").findChildren<QAbstractButton*>()) {
    pictures.push_back(Seen(*button));
    EXPECT_GE(ContrastIn(pictures.back()), kPlain) << button->toolTip().toStdString();
  }
  for (const Chooser& chooser : kChoosers) {
    QLineEdit& box = Box(chooser.column, 17);
    box.setFocus();
    box.setText("zz");
    const std::vector<Tile> unmarked = TilesOf(chooser);
    for (const Tile& picked : unmarked) {
      pictures.push_back(picked.seen.copy(4, 3, 33, 35));  // without its code
      EXPECT_GE(ContrastIn(pictures.back()), kPlain);
      EXPECT_EQ(WoodIn(pictures.back()) >= 4, chooser.column == 13) << "only a body holds a bat";

      QTest::mouseClick(picked.button, Qt::LeftButton);
      EXPECT_EQ(box.text(), picked.text) << picked.button->objectName().toStdString();
      const std::vector<Tile> now = TilesOf(chooser);
      for (std::size_t place = 0; place < now.size(); ++place) {
        const bool is_marked =
            CountOf(now[place].seen, kAccent) > CountOf(unmarked[place].seen, kAccent);
        EXPECT_EQ(is_marked, now[place].button == picked.button)
            << now[place].text.toStdString() << " after a pick of " << picked.text.toStdString();
      }
    }
  }
  std::set<QByteArray> different;
  for (const QImage& picture : pictures) {
    different.insert(QByteArrayView(picture.constBits(), picture.sizeInBytes()).toByteArray());
  }
  EXPECT_EQ(different.size(), 28U + 48U + 48U + 10U);
}

TEST_F(PaintedWindowTest, ATextTooLongForItsBoxShowsHowItBegins) {
  StartWithTeam();
  const auto left_behind = [this](const QString& text) {
    TypeInto(10, 3, text);
    Box(10, 6).setFocus();
    return Seen(Box(10, 3)).copy(0, 2, 12, 17);
  };
  EXPECT_EQ(left_behind("71111111111111"), left_behind("71111111111118"));
  EXPECT_NE(left_behind("71111111111111"), left_behind("81111111111111"));
}

TEST_F(PaintedWindowTest, ACellThatIsNotSavedHasABarWhateverElseItHas) {
  StartWithTeam();
  // The left and the right edge, without the ring and the lines.
  const auto bar_of = [this](int row) {
    const QImage seen = Seen(Box(6, row)).copy(2, 3, 20, 15);
    const QColor ground = GroundOf(seen);
    const auto least = [&](int x) {
      double contrast = 21;
      for (int y = 0; y < seen.height(); ++y) {
        contrast = std::min(contrast, Contrast(seen.pixelColor(x, y), ground));
      }
      return contrast;
    };
    EXPECT_LT(least(19), kPlain) << "no bar on the right";
    return least(0) >= kPlain;
  };
  for (const bool dark : {false, true}) {
    QApplication::setPalette(dark ? theme::PaletteOf(theme::kDark) : QPalette());
    for (const int row : {3, 4}) {
      QLineEdit& box = Box(6, row);
      Box(1, row).setFocus();
      const QString saved = box.text();
      EXPECT_FALSE(bar_of(row));
      box.setText("X");
      EXPECT_TRUE(bar_of(row)) << "in the row of the focus";
      box.setFocus();
      EXPECT_TRUE(bar_of(row)) << "selected";
      box.deselect();
      EXPECT_TRUE(bar_of(row)) << "with the focus";
      Box(12, row).setFocus();
      Box(1, 9).setFocus();
      EXPECT_TRUE(bar_of(row)) << "in the row of the player in view";
      Choose("mnuMini");
      EXPECT_TRUE(bar_of(row)) << "in a row of its own";
      box.setText(saved);
      EXPECT_FALSE(bar_of(row));
    }
  }
  QApplication::setPalette(QPalette());

  const QImage idle = Seen(Find("Command1"));
  TypeInto(6, 3, "X");
  const QImage pending = Seen(Find("Command1"));
  EXPECT_GT(CountOf(pending, theme::kLight.fill), 4 * CountOf(idle, theme::kLight.fill));
}

TEST_F(PaintedWindowTest, TheStanceShowsEachPieceOfItsRowInItsPlace) {
  StartWithTeam();
  Box(12, 2).setFocus();
  const auto figure = [this](const QStringList& codes, int row = 2) {
    for (int column = 12; column <= 14; ++column) Box(column, row).setText(codes[column - 12]);
    return Figure();
  };
  const auto top_of = [](const QImage& picture) {
    int top = 0;
    while (ColorsOf(picture.copy(0, 0, picture.width(), top + 1)).size() == 1) ++top;
    return top;
  };
  EXPECT_EQ(ColorsOf(figure({"", "", ""})).size(), 1U);
  EXPECT_EQ(figure({"zz", "", ""}), figure({"F0", "", ""})) << "both unknown, and seen to be so";
  EXPECT_GT(ColorsOf(figure({"zz", "", ""})).size(), 1U);
  const QImage face = figure({"3", "", ""});
  const QImage marked = Seen(Find("Picture1(36)"));
  EXPECT_EQ(figure({"FFFF0003", "", ""}), face) << "what SAVE makes of it";
  EXPECT_EQ(Seen(Find("Picture1(36)")), marked);
  const QImage body = figure({"", "57", ""});
  const QImage legs = figure({"", "", "14"});
  EXPECT_GE(WoodIn(body), 4);
  EXPECT_LT(WoodIn(face) + WoodIn(legs), 4);
  EXPECT_LT(top_of(face), top_of(legs));
  EXPECT_EQ(figure({"3", "57", "14"}, 3), legs) << "another row";

  for (const int column : {1, 2, 3}) {
    const QImage before = Seen(Find("StanceView"));
    Box(column, 3).setText("77");
    EXPECT_EQ(Seen(Find("StanceView")), before);
    Box(column, 2).setText("77");
    EXPECT_NE(Seen(Find("StanceView")), before) << column;
    Box(column, 2).clear();
    EXPECT_EQ(Figure(), legs) << column;
  }
}

TEST_F(PaintedWindowTest, ThePlayerWearsTheColorsOfTheTeamInTheTitle) {
  StartWithTeam();
  const auto expect_club = [this](const char* when, bool is_braves) {
    for (int column = 12; column <= 14; ++column) Box(column, 0).setText("3");
    Box(12, 0).clearFocus();
    Box(12, 0).setFocus();
    const QImage figure = Figure();
    EXPECT_EQ(CountOf(figure, kBravesNavy) > 40, is_braves) << when;
    EXPECT_EQ(CountOf(figure, kOriolesOrange) > 40, !is_braves) << when;
  };
  expect_club("at first", true);
  Click("Orioles");
  expect_club("another team", false);
  ChooseWith("mnuImport", TeamFile("J.SMITH"));
  expect_club("after an import", false);
  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_EQ(LabelText("Label4(0)"), "BALTIMORE ORIOLES");
  PutFile(ImageFile(), Sample());
  Click("Braves");
  expect_club("after a failed load and a good one", true);
}

TEST_F(PaintedWindowTest, EveryTileAndThePlayerHaveRoomOfTheirOwn) {
  StartWithTeam();
  for (const Chooser& chooser : kChoosers) {
    Box(chooser.column, 0).setFocus();
    QRegion taken(Find("StanceView").geometry());
    for (const Tile& tile : TilesOf(chooser)) {
      EXPECT_EQ(tile.button->visibleRegion(), tile.button->rect()) << chooser.pictures;
      EXPECT_FALSE(taken.intersects(tile.button->geometry())) << chooser.pictures;
      taken += tile.button->geometry();
    }
    EXPECT_TRUE(Find("StancePanel").rect().adjusted(3, 0, 0, 0).contains(taken.boundingRect()));
  }
}

TEST_F(PaintedWindowTest, APickGoesToTheStanceRowAndMovesNothing) {
  StartWithTeam();
  // Before any visit it is the first row.
  Find("Frame3").show();
  Click("Picture2(47)");
  EXPECT_EQ(Box(13, 0).text(), "57");

  QLineEdit& box = Box(12, 17);
  box.setFocus();
  for (int picks = 0; picks < 2; ++picks) {
    box.deselect();
    Click("Picture1(36)");
    EXPECT_EQ(QApplication::focusWidget(), &box);
    EXPECT_EQ(box.selectedText(), "3") << "also where the text stays the same";
  }
  EXPECT_TRUE(ChangedPositions().empty());
  Click("Command1");
  EXPECT_EQ(GetFile(ImageFile()).at(kBraves - 1 + 32 * 17 + 14), 0x03);

  Box(1, 9).setFocus();
  Box(1, 9).setSelection(1, 2);
  Click("Picture1(0)");
  EXPECT_EQ(box.text(), "0");
  EXPECT_EQ(Box(1, 9).selectionLength(), 2) << "another box keeps its selection";
}

TEST_F(PaintedWindowTest, PicturesTakeClicksWheneverTheyAreInView) {
  StartWithTeam();
  Box(12, 0).setFocus();
  const auto pick = [this](int index) {
    Find<QAbstractButton>(QString("Picture1(%1)").arg(index)).click();
    return Box(12, 0).text();
  };
  ASSERT_EQ(pick(36), "3");
  Choose("mnuMorlekHELP");
  EXPECT_EQ(pick(12), "1") << "beside the help";
  CloseHelp();

  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_FALSE(IsShown("Frame1"));
  EXPECT_EQ(window->width(), 666);
  EXPECT_EQ(pick(24), "2") << "after a load that failed";
}

}  // namespace
}  // namespace morlek

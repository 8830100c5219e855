#include <QAbstractButton>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <set>

#include "shell/eye.h"
#include "shell/splash_window.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr double kReadable = 4.5;
constexpr double kPlain = 3;  // for pictures, and strokes thinner than a pixel
constexpr QColor kWood(0xe0, 0xab, 0x66);

/// The features columns with the pictures that are chosen from for them.
struct Chooser {
  int column;
  const char* pictures;
};
constexpr std::array<Chooser, 3> kChoosers = {
    {{12, "Picture1"}, {13, "Picture2"}, {14, "Picture3"}}};

class PaintedWindowTest : public WindowTest {
 protected:
  /// The tiles of a chooser, by name.
  [[nodiscard]] QList<QAbstractButton*> Tiles(const char* array) const {
    return window->findChildren<QAbstractButton*>(
        QRegularExpression(QString(R"(^%1\()").arg(array)));
  }

  /// What is seen of each, from one look at the whole window.
  [[nodiscard]] std::vector<QImage> SeenTiles(const char* array) const {
    const QImage all = Seen(*window);
    std::vector<QImage> seen;
    for (const QAbstractButton* tile : Tiles(array)) {
      seen.push_back(all.copy({tile->mapTo(window.get(), QPoint(0, 0)), tile->size()}));
    }
    return seen;
  }

  void Put(int column, const QString& text) { Box(column, 0).setText(text); }

  [[nodiscard]] double ContrastOf(const QString& name, int margin = 3) const {
    const QImage seen = Seen(Find(name));
    return ContrastIn(seen.copy(seen.rect().adjusted(margin, margin, -margin, -margin)));
  }
};

TEST_F(PaintedWindowTest, TextStandsOutFromItsGround) {
  Start(std::nullopt);
  EXPECT_GE(ContrastOf("labelHint"), kReadable);
  EXPECT_GE(ContrastOf("Label3", 0), kReadable);
  const QImage bar = Seen(*window->menuBar());
  for (QAction* menu : window->menuBar()->actions()) {
    EXPECT_GE(ContrastIn(bar.copy(window->menuBar()->actionGeometry(menu))), kReadable);
  }
  user.paths.emplace_back(ImagePath());
  Choose("mnuOpen");
  EXPECT_GE(ContrastOf("labelHint"), kReadable);
  Click("Braves");
  for (const char* name :
       {"Label4(0)", "Label4(1)", "Label4(14)", "Label4(15)", "Label4(28)", "Label3", "Command1",
        "Text1(0)", "Text1(1)", "Text3(14)", "Text14(24)"}) {
    EXPECT_GE(ContrastOf(name), kReadable) << name;
  }
  Box(1, 0).setFocus();
  EXPECT_GE(ContrastIn(Seen(Box(1, 0)).copy(6, 6, 30, 9)), kReadable) << "selected text";
  Box(12, 0).setFocus();
  EXPECT_GE(ContrastOf("Label1", 0), kReadable);
  EXPECT_GE(ContrastIn(Seen(Find("StanceView")).copy(104, 30, 90, 40)), kReadable);
  for (const char* tile : {"Picture1(0)", "Picture1(47)"}) {
    EXPECT_GE(ContrastIn(Seen(Find(tile)).copy(37, 29, 11, 10)), kPlain) << tile;
  }
  Choose("mnuMorlekHELP");
  EXPECT_GE(ContrastOf("Text15"), kReadable);
  for (const auto group : {QPalette::Active, QPalette::Disabled}) {
    const QPalette palette = QApplication::palette();
    EXPECT_GE(Contrast(palette.color(group, QPalette::ToolTipText),
                       palette.color(group, QPalette::ToolTipBase)),
              kReadable);
    EXPECT_GE(Contrast(palette.color(group, QPalette::ButtonText),
                       palette.color(group, QPalette::Button)),
              kReadable);
  }
}

TEST_F(PaintedWindowTest, EveryBadgeIsItsOwnPicture) {
  Start(ImagePath());
  std::set<std::vector<uchar>> pictures;
  for (const auto* button : Find("Toolbar1").findChildren<QAbstractButton*>()) {
    const QImage badge = Seen(*button);
    EXPECT_EQ(button->visibleRegion(), button->rect()) << button->toolTip().toStdString();
    EXPECT_GE(ContrastIn(badge), kPlain) << button->toolTip().toStdString();
    pictures.emplace(badge.constBits(), badge.constBits() + badge.sizeInBytes());
  }
  EXPECT_EQ(pictures.size(), 28U);
}

TEST_F(PaintedWindowTest, EveryTileIsItsOwnPictureAndOnlyABodyHoldsABat) {
  StartWithTeam();
  std::set<std::vector<uchar>> pictures;
  for (const auto& [column, array] : kChoosers) {
    Box(column, 0).setFocus();
    for (const QImage& tile : SeenTiles(array)) {
      const QImage picture = tile.copy(4, 3, 33, 35);
      EXPECT_GE(InkOf(picture), 200);
      if (column == 13) {
        EXPECT_GE(CountOf(picture, kWood), 12);
      } else {
        EXPECT_LE(CountOf(picture, kWood), 4);
      }
      pictures.emplace(picture.constBits(), picture.constBits() + picture.sizeInBytes());
    }
  }
  EXPECT_EQ(pictures.size(), 106U);
}

TEST_F(PaintedWindowTest, APickMarksItsTileAndNoOther) {
  StartWithTeam();
  for (const auto& [column, array] : kChoosers) {
    Box(column, 0).setFocus();
    Put(column, "zz");
    const std::vector<QImage> unmarked = SeenTiles(array);
    for (QAbstractButton* picked : Tiles(array)) {
      QTest::mouseClick(picked, Qt::LeftButton);
      const std::vector<QImage> seen = SeenTiles(array);
      for (std::size_t place = 0; place < seen.size(); ++place) {
        const bool is_picked = Tiles(array).at(static_cast<int>(place)) == picked;
        EXPECT_EQ(seen[place] != unmarked[place], is_picked)
            << picked->objectName().toStdString() << " at place " << place;
      }
    }
  }
}

TEST_F(PaintedWindowTest, TheStanceShowsEachPieceInItsPlace) {
  StartWithTeam();
  Box(12, 0).setFocus();
  const auto seen = [this](const QString& face, const QString& body, const QString& legs) {
    Put(12, face);
    Put(13, body);
    Put(14, legs);
    return Seen(Find("StanceView")).copy(4, 3, 96, 97);
  };
  const QImage blank = seen("zz", "F0", "");
  EXPECT_EQ(InkOf(blank), 0);
  const auto top_of = [&blank](const QImage& figure) {
    for (int y = 0; y < figure.height(); ++y) {
      if (figure.copy(0, y, figure.width(), 1) != blank.copy(0, y, blank.width(), 1)) return y;
    }
    return figure.height();
  };
  const QImage face = seen("3", "zz", "zz");
  const QImage body = seen("zz", "57", "zz");
  const QImage legs = seen("zz", "zz", "14");
  EXPECT_GE(CountOf(body, kWood), 12);
  EXPECT_LE(CountOf(face, kWood) + CountOf(legs, kWood), 4);
  EXPECT_LT(top_of(face), top_of(legs));
  EXPECT_LT(top_of(legs), blank.height());
  EXPECT_LT(InkOf(legs), InkOf(seen("3", "57", "14")));
}

TEST_F(PaintedWindowTest, TheStanceFollowsItsRowAndNoOther) {
  StartWithTeam();
  Box(12, 2).setFocus();
  const auto view = [this] { return Seen(Find("StanceView")); };
  QImage before = view();
  for (const auto& [column, text] : {std::pair(1, "N.NEW"), {12, "3"}, {13, "57"}, {14, "14"}}) {
    Box(column, 2).setText(text);
    EXPECT_NE(view(), before) << column;
    before = view();
    Box(column, 3).setText(column == 1 ? "N.OTHER" : "0");
    EXPECT_EQ(view(), before) << "another row, column " << column;
  }
}

TEST(PaintedSplashTest, HasAPicture) {
  SplashWindow splash;
  splash.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&splash));
  EXPECT_GE(ContrastIn(Seen(splash)), kReadable);
}

}  // namespace
}  // namespace morlek

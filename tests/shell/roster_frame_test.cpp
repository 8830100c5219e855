#include <QPushButton>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

class RosterFrameTest : public WindowTest {};

TEST_F(RosterFrameTest, StandsAtTheStatedPlaces) {
  Start(ImagePath());
  struct Place {
    const char* name;
    QRect rect;
  };
  // Twips divided by 15.
  const std::vector<Place> places = {
      {"Frame1", {4, 48, 437, 601}},      {"Text1(0)", {0, 56, 109, 21}},
      {"Text11(1)", {332, 76, 29, 21}},   {"Text14(0)", {408, 56, 25, 21}},
      {"Text1(15)", {0, 384, 109, 21}},   {"Text9(15)", {180, 384, 33, 21}},
      {"Text11(24)", {332, 564, 25, 21}}, {"Text14(24)", {404, 564, 25, 21}},
      {"Label4(1)", {0, 32, 109, 24}},    {"Label4(14)", {408, 32, 25, 24}},
      {"Label4(19)", {180, 360, 33, 24}}, {"Label4(28)", {404, 360, 25, 24}},
  };
  for (const Place& place : places) {
    EXPECT_EQ(Find(place.name).geometry(), place.rect) << place.name;
  }
  EXPECT_EQ(Find("Label4(0)").pos(), QPoint(0, 4));
  EXPECT_EQ(Find("Command1").pos(), QPoint(280, 4));
  EXPECT_EQ(window->width(), 447);
}

TEST_F(RosterFrameTest, TabGoesAlongARowAndThenToTheNext) {
  StartWithTeam();
  Box(4, 14).setFocus();
  const QStringList expected = {
      "Text5(14)",  "Text6(14)",  "Text7(14)",  "Text8(14)",  "Text9(14)", "Text10(14)",
      "Text11(14)", "Text12(14)", "Text13(14)", "Text14(14)", "Text1(15)", "Text2(15)",
      "Text3(15)",  "Text4(15)",  "Text9(15)",  "Text5(15)",  "Text6(15)"};
  for (const QString& name : expected) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "Text5(15)");
}

TEST_F(RosterFrameTest, UpAndDownKeepThePlaceInTheRow) {
  StartWithTeam();
  Box(5, 14).setFocus();
  QTest::keyClick(&Box(5, 14), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), &Box(9, 15));
  QTest::keyClick(&Box(9, 15), Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget(), &Box(5, 14));
  EXPECT_EQ(Box(5, 14).selectedText(), Box(5, 14).text());
  Box(1, 0).setFocus();
  QTest::keyClick(&Box(1, 0), Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget(), &Box(1, 0));
  Box(14, 24).setFocus();
  QTest::keyClick(&Box(14, 24), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), &Box(14, 24));
}

TEST_F(RosterFrameTest, TeamsCanBePickedByKeyboard) {
  Start(std::nullopt);
  user.messages.clear();
  QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(user.messages.empty()) << "no team is loaded before there is an image";
  const auto press = [this](Qt::Key key) {
    QTest::keyClick(window.get(), key, Qt::ControlModifier);
    return LabelText("Label4(0)");
  };
  user.paths.emplace_back(ImagePath());
  Choose("mnuOpen");
  EXPECT_EQ(press(Qt::Key_PageUp), "");
  EXPECT_EQ(press(Qt::Key_PageDown), "ATLANTA BRAVES");
  EXPECT_EQ(press(Qt::Key_PageDown), "BALTIMORE ORIOLES");
  EXPECT_EQ(press(Qt::Key_PageUp), "ATLANTA BRAVES");
  user.paths.emplace_back(ImagePath());
  press(Qt::Key_PageDown);
  Choose("mnuOpen");
  EXPECT_EQ(press(Qt::Key_PageDown), "ATLANTA BRAVES") << "another image starts anew";
}

}  // namespace
}  // namespace morlek

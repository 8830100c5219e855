#include <map>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

using RosterTest = WindowTest;

TEST_F(RosterTest, ShakyFirstClickKeepsTheSelectionAndALaterDragSelectsAPart) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  const auto drag = [&box](const QPoint& from, const QPoint& to) {
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, box.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&box, &move);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, to);
    return box.selectedText();
  };
  EXPECT_EQ(drag({12, 10}, {16, 11}), box.text());
  box.deselect();
  EXPECT_EQ(drag({2, 10}, {16, 11}), box.text().left(2));
}

TEST_F(RosterTest, TakesWhatTheCodePageKnowsOnOneLineHoweverItComes) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  PasteInto(1, 0, QString::fromUtf8("J.Žö€中文😀\r\n"));
  EXPECT_EQ(box.text(), QString::fromUtf8("J.Žö€???"));
  PasteInto(1, 1, "");
  EXPECT_EQ(Box(1, 1).text(), "") << "nothing replaces what is selected, as ever";
  PasteInto(1, 1, QString(10000000, 'x'));
  EXPECT_EQ(Box(1, 1).text().size(), 32767);
  TypeInto(3, 1, "42");
  QTest::sendKeyEvent(QTest::Click, &Box(3, 1), Qt::Key_O, "o", Qt::AltModifier);
  EXPECT_EQ(Box(3, 1).text(), "42") << "a key for a menu";
  QTest::sendKeyEvent(QTest::Click, &Box(3, 1), Qt::Key_unknown, QString::fromUtf8("€"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(Box(3, 1).text(), QString::fromUtf8("42€")) << "but with AltGr";
}

TEST_F(RosterTest, TabGoesThroughAllBoxesAsTheyStandAndUpDownAndReturnKeepThePlaceInTheRow) {
  StartWithTeam();
  std::map<std::pair<int, int>, QString> boxes;  // by row and place from the left
  for (int row = 0; row < 25; ++row) {
    for (int column = 1; column <= 14; ++column) {
      boxes[{row, Box(column, row).x()}] = Box(column, row).objectName();
    }
  }
  std::vector<QString> sheet;
  for (const auto& [place, name] : boxes) sheet.push_back(name);
  const auto goes = [this](const QString& from, Qt::Key key) {
    Find(from).setFocus();
    Press(key);
    return Focused();
  };
  for (std::size_t place = 0; place < sheet.size(); ++place) {
    const QString& box = sheet[place];
    const QString& below = place + 14 < sheet.size() ? sheet[place + 14] : box;
    EXPECT_EQ(goes(box, Qt::Key_Down), below);
    EXPECT_EQ(goes(box, Qt::Key_Return), below);
    EXPECT_EQ(goes(box, Qt::Key_Up), place < 14 ? box : sheet[place - 14]);
    if (place + 1 == sheet.size()) break;
    EXPECT_EQ(goes(box, Qt::Key_Tab), sheet[place + 1]);
    EXPECT_EQ(goes(sheet[place + 1], Qt::Key_Backtab), box);
  }
}

TEST_F(RosterTest, NextAndPreviousTeamGoRoundByKeys) {
  Start(ImagePath());
  for (int image = 0; image < 2; ++image) {
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_FALSE(IsShown("Frame1")) << "each image starts anew";
    for (const auto& [key, team] : {std::pair(Qt::Key_PageDown, "ATLANTA BRAVES"),
                                    {Qt::Key_PageUp, "TORONTO BLUE JAYS"},
                                    {Qt::Key_PageDown, "ATLANTA BRAVES"},
                                    {Qt::Key_PageDown, "BALTIMORE ORIOLES"}}) {
      Press(key, Qt::ControlModifier);
      EXPECT_EQ(LabelText("Label4(0)"), team);
    }
    ChooseWith("mnuOpen", ImagePath());
  }
}

}  // namespace
}  // namespace morlek

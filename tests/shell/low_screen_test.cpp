#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

class LowScreenTest : public WindowTest {
 protected:
  void StartOnScreen(int number) {
    screen = QGuiApplication::screens().at(number);
    StartWithTeam();
    ASSERT_EQ(window->screen(), screen);
  }

  [[nodiscard]] const QScrollArea& Area() const { return *window->findChild<QScrollArea*>(); }
  [[nodiscard]] bool IsSeenWhole(const QWidget& widget) const {
    return widget.visibleRegion() == widget.rect();
  }
};

TEST_F(LowScreenTest, AHighScreenNeedsNoScrollBar) {
  StartOnScreen(0);
  EXPECT_EQ(Area().viewport()->size(), QSize(447, 653));
  EXPECT_EQ(window->width(), 447);
  EXPECT_FALSE(Area().verticalScrollBar()->isVisible());
  for (const char* name : {"Text1(0)", "Text14(24)", "Label3", "Command1"}) {
    EXPECT_TRUE(IsSeenWhole(Find(name))) << name;
  }
  Box(12, 24).setFocus();
  for (const char* name : {"Picture1(47)", "StanceView"}) {
    EXPECT_TRUE(IsSeenWhole(Find(name))) << name;
  }
}

TEST_F(LowScreenTest, TheWindowStaysWithinTheScreenAndItsContentKeepsItsWidth) {
  StartOnScreen(1);
  for (const int width : {447, 666}) {
    if (width == 666) Box(13, 0).setFocus();
    EXPECT_LE(window->frameGeometry().height(), screen->availableGeometry().height());
    EXPECT_GE(window->frameGeometry().height(), screen->availableGeometry().height() - 8);
    QTest::qWait(20);
    EXPECT_EQ(Area().viewport()->width(), width);
    EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
    EXPECT_FALSE(Area().horizontalScrollBar()->isVisible());
  }
}

TEST_F(LowScreenTest, TheGridScrollsWithTheFocus) {
  StartOnScreen(1);
  EXPECT_FALSE(IsSeenWhole(Box(1, 24)));
  for (int row = 0; row < 25; ++row) {
    Box(1, row).setFocus();
    EXPECT_TRUE(IsSeenWhole(Box(1, row))) << row;
  }
  // Where it has to scroll, the neighbour comes into view as well.
  Box(1, 3).setFocus();
  EXPECT_TRUE(IsSeenWhole(Box(1, 2)));
  Box(1, 20).setFocus();
  EXPECT_TRUE(IsSeenWhole(Box(1, 21)));
  // A click beside the grid takes the focus from no box.
  QTest::mouseClick(Area().widget(), Qt::LeftButton, Qt::NoModifier, QPoint(445, 340));
  EXPECT_TRUE(Box(1, 20).hasFocus());
}

TEST_F(LowScreenTest, HelpBeginsWithItsFirstLine) {
  StartOnScreen(1);
  Box(1, 24).setFocus();
  Choose("mnuMorlekHELP");
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
  auto& help = Find<QPlainTextEdit>("Text15");
  EXPECT_TRUE(help.viewport()->visibleRegion().contains(QPoint(20, 15)));
  DoubleClick(*help.viewport());
  QTest::keyClick(&Box(1, 24), Qt::Key_Up);
  EXPECT_TRUE(IsSeenWhole(Box(1, 23)));
}

}  // namespace
}  // namespace morlek

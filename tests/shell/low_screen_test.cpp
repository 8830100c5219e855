#include <QPlainTextEdit>
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
  [[nodiscard]] static bool IsSeenWhole(const QWidget& widget) {
    return widget.visibleRegion() == widget.rect();
  }
};

TEST_F(LowScreenTest, AHighScreenShowsAllWithoutScrolling) {
  StartOnScreen(0);
  EXPECT_EQ(Area().viewport()->size(), QSize(447, 653));
  EXPECT_EQ(Area().viewport()->width(), window->width());
  Box(12, 24).setFocus();
  EXPECT_EQ(Area().viewport()->size(), QSize(666, 653));
}

TEST_F(LowScreenTest, TheWindowStaysWithinTheScreenAndItsContentKeepsItsWidth) {
  StartOnScreen(1);
  for (const int width : {447, 666}) {
    if (width == 666) Box(13, 0).setFocus();
    const int spare = screen->availableGeometry().height() - window->frameGeometry().height();
    EXPECT_TRUE(spare >= 0 && spare < 8) << spare;
    QTest::qWait(20);
    EXPECT_EQ(Area().viewport()->width(), width);
    EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
  }
}

TEST_F(LowScreenTest, TheGridScrollsWithTheFocusAndHelpBeginsWithItsFirstLine) {
  StartOnScreen(1);
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
  Choose("mnuMorlekHELP");
  EXPECT_TRUE(Find<QPlainTextEdit>("Text15").viewport()->visibleRegion().contains({20, 15}));
}

}  // namespace
}  // namespace morlek

#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "shell/splash_window.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr int kNarrow = 447;
constexpr int kWide = 666;

class MainWindowTest : public WindowTest {
 protected:
  void StartOnScreen(int number) {
    screen = QGuiApplication::screens().at(number);
    Start(ImagePath());
    ASSERT_EQ(window->screen(), screen);
  }
  void ExpectToFit(bool is_low) const {
    const int spare = screen->availableGeometry().height() - window->frameGeometry().height();
    EXPECT_TRUE(spare >= 0 && (!is_low || spare < 8)) << spare;
  }
  [[nodiscard]] const QScrollArea& Area() const { return *window->findChild<QScrollArea*>(); }
  [[nodiscard]] bool IsSeenWhole(int column, int row) const {
    return Box(column, row).visibleRegion() == Box(column, row).rect();
  }
};

TEST_F(MainWindowTest, KeysOfTheLineEditorReachTheMenuFromABox) {
  StartWithTeam();
  QTest::mouseClick(&Box(1, 4), Qt::LeftButton);
  const std::vector<QString> before = GridTexts();
  Press(Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(user.messages.size(), 1U);
  EXPECT_EQ(user.messages[0].title, "MORLEK EDITOR");
  EXPECT_TRUE(user.messages[0].text.startsWith("MORLEK EDITOR for SNES Dale Harrow Baseball.\n"));
  EXPECT_TRUE(user.messages[0].text.contains(QRegularExpression(R"(\nVersion \d+\.\d+\.\d+,)")));

  Press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(user.save_questions.size(), 1U);
  Press(Qt::Key_H, Qt::ControlModifier);
  EXPECT_TRUE(IsShown("Frame5"));
  EXPECT_EQ(GridTexts(), before);
}

TEST_F(MainWindowTest, QuitAsksAndTheCloseBoxDoesNot) {
  StartWithTeam();
  TypeInto(1, 0, "EDITED");
  for (const bool stays : {true, false}) {
    user.answers = {!stays};
    Choose("mnuQuit");
    EXPECT_EQ(user.yes_no_questions.back().text,
              "Are you sure you want to quit MORLEK EDITOR?\n\nIf not then click NO.");
    EXPECT_EQ(user.yes_no_questions.back().title, "MORLEK EDITOR");
    EXPECT_EQ(window->isVisible(), stays);
  }
  window->show();
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(user.yes_no_questions.size(), 2U);
}

TEST_F(MainWindowTest, TheWindowStaysWithinTheScreenAndItsContentKeepsItsWidth) {
  for (const int number : {0, 1}) {
    StartOnScreen(number);
    ExpectToFit(number == 1);
    Click("Braves");
    for (const int width : {kNarrow, kWide}) {
      if (width == kWide) Box(13, 0).setFocus();
      QTest::qWait(20);
      EXPECT_EQ(Area().viewport()->width(), width);
      EXPECT_EQ(Area().viewport()->height() == 653, number == 0);
      EXPECT_EQ(Area().verticalScrollBar()->isVisible(), number == 1);
      ExpectToFit(number == 1);
      for (const char* foot : {"labelStatus", "Label3"}) {
        EXPECT_EQ(Find(foot).visibleRegion(), Find(foot).rect()) << foot;
        EXPECT_EQ(Find(foot).mapTo(window.get(), QPoint()).y(), window->height() - 18) << foot;
      }
    }
    Choose("mnuMini");
    const int desktop = screen->availableVirtualGeometry().right();
    window->move(desktop - kNarrow, 0);
    Box(12, 0).setFocus();
    EXPECT_EQ(window->frameGeometry().right(), desktop) << "what it grew by is on the desktop";
  }
}

TEST_F(MainWindowTest, HelpCoversTheGridUntilItIsDoubleClicked) {
  StartWithTeam();
  QTest::mouseClick(&Box(13, 3), Qt::LeftButton);
  Choose("mnuMini");
  const std::vector<QString> texts = GridTexts();
  EXPECT_EQ(window->findChild<QWidget*>("Frame5"), nullptr) << "the start waits for the help";
  Choose("mnuMorlekHELP");
  Choose("mnuMorlekHELP");
  EXPECT_EQ(Find("Frame5").geometry(), QRect(0, 0, 441, 633));
  EXPECT_EQ(Find("Frame5").toolTip(), "Double-click to close");

  auto& help = Find<QPlainTextEdit>("Text15");
  QTest::mouseClick(help.viewport(), Qt::LeftButton);
  DoubleClick(*help.viewport(), Qt::RightButton);
  for (const auto key : {Qt::Key_Escape, Qt::Key_X, Qt::Key_Tab, Qt::Key_Backtab}) Press(key);
  for (const auto key : {Qt::Key_PageDown, Qt::Key_S}) Press(key, Qt::ControlModifier);
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(GridTexts(), texts);
  EXPECT_EQ(QApplication::focusWidget(), &help) << "the covered grid takes no keys";
  EXPECT_TRUE(IsShown("Frame5"));
  EXPECT_EQ(LabelText("Label4(0)"), "ATLANTA BRAVES");
  EXPECT_TRUE(user.messages.empty());
  CloseHelp();
  EXPECT_FALSE(IsShown("Frame5"));
  EXPECT_EQ(QApplication::focusWidget(), &Box(13, 3));
  EXPECT_EQ(Box(13, 3).selectedText(), Box(13, 3).text());
  EXPECT_EQ(window->width(), kNarrow) << "closing the help is no visit to a features box";
}

TEST_F(MainWindowTest, OnTopIsTurnedOnAndOffInPlace) {
  StartWithTeam();
  const auto* native = window->windowHandle();
  const WId id = window->winId();
  for (const bool on_top : {false, true, false}) {
#ifndef Q_OS_WIN  // there the system keeps it, and knows nothing of the windows of tests
    EXPECT_EQ(native->flags().testFlag(Qt::WindowStaysOnTopHint), on_top);
#endif
    EXPECT_EQ(Find<QAction>("mnuAlwaysOnTop").isVisible(), !on_top);
    EXPECT_EQ(Find<QAction>("mnuNotTop").isVisible(), on_top);
    Choose(on_top ? "mnuNotTop" : "mnuAlwaysOnTop");
  }
  EXPECT_EQ(window->windowHandle(), native) << "the window was recreated";
  EXPECT_EQ(window->winId(), id);
}

TEST_F(MainWindowTest, TheGridScrollsWithTheFocusAndHelpBeginsWithItsFirstLine) {
  StartOnScreen(1);
  Click("Braves");
  for (int row = 0; row < 25; ++row) {
    Box(1, row).setFocus();
    EXPECT_TRUE(IsSeenWhole(1, row)) << row;
  }
  // Where it has to scroll, the neighbour comes into view as well.
  Box(1, 3).setFocus();
  EXPECT_TRUE(IsSeenWhole(1, 2));
  Box(1, 20).setFocus();
  // A click beside the grid takes the focus from no box.
  QTest::mouseClick(Area().widget(), Qt::LeftButton, Qt::NoModifier, QPoint(445, 340));
  EXPECT_TRUE(Box(1, 20).hasFocus());
  Choose("mnuMorlekHELP");
  const auto& help = Find<QPlainTextEdit>("Text15");
  const auto is_seen = [&help](QPoint point) {
    return help.viewport()->visibleRegion().contains(point);
  };
  EXPECT_TRUE(is_seen({20, 15}));
  Press(Qt::Key_End);
  EXPECT_TRUE(help.textCursor().atEnd());
  EXPECT_TRUE(is_seen(help.cursorRect().center()));
  EXPECT_FALSE(is_seen({20, 15}));
  Press(Qt::Key_Home);
  EXPECT_TRUE(is_seen({20, 15}));
  QScrollBar& bar = *Area().verticalScrollBar();
  bar.setValue(bar.maximum());
  Press(Qt::Key_Shift);
  EXPECT_EQ(bar.value(), bar.maximum()) << "what is being read stays";
}

TEST_F(MainWindowTest, OpensWhereTheSplashStoodButWithinTheScreen) {
  MakeWindow();
  QWidget splash;
  splash.setFixedSize(480, 300);
  splash.show();
  splash.move(280, 210);
  PlaceOver(*window, splash);
  user.paths = {std::nullopt};
  window->show();
  EXPECT_LE((window->frameGeometry().center() - splash.frameGeometry().center()).manhattanLength(),
            2);
  for (const int x : {-100, 700}) {
    splash.move(x, 600);
    QCoreApplication::processEvents();  // by which it gets to know its screen
    PlaceOver(*window, splash);
    EXPECT_TRUE(splash.screen()->availableGeometry().contains(window->frameGeometry())) << x;
  }
  splash.move(1400, 90);
  QCoreApplication::processEvents();
  PlaceOver(*window, splash);
  EXPECT_EQ(window->y(), 0) << "on a screen lower than the window";
}

}  // namespace
}  // namespace morlek

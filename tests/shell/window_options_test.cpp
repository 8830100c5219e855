#include <QPlainTextEdit>
#include <QWindow>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr int kNarrow = 447;
constexpr int kWide = 666;

class WindowOptionsTest : public WindowTest {};

TEST_F(WindowOptionsTest, FeaturesBoxesWidenTheWindowAndShowTheirChooser) {
  StartWithTeam();
  const std::vector<std::pair<int, QString>> choosers = {
      {12, "Frame2"}, {13, "Frame3"}, {14, "Frame4"}};
  for (const auto& [column, shown] : choosers) {
    Choose("mnuMini");
    EXPECT_EQ(window->width(), kNarrow);
    Box(column, 16).setFocus();
    EXPECT_EQ(window->width(), kWide);
    for (const auto& [other, frame] : choosers) EXPECT_EQ(IsShown(frame), frame == shown) << column;
    EXPECT_EQ(Find(shown).mapTo(window->centralWidget(), QPoint(0, 0)).x(), 444);
  }
  Box(11, 16).setFocus();
  EXPECT_EQ(window->width(), kWide) << "only an action sets a width";
}

TEST_F(WindowOptionsTest, NarrowingKeepsTheChooserForTheNextWidening) {
  StartWithTeam();
  EXPECT_FALSE(IsShown("Frame2") || IsShown("Frame3") || IsShown("Frame4"));
  Box(13, 2).setFocus();
  Choose("mnuMini");
  EXPECT_FALSE(Find("Frame3").isHidden());
  Box(14, 2).setFocus();
  Click("Cubs");
  EXPECT_EQ(window->width(), kNarrow);
  EXPECT_FALSE(Find("Frame4").isHidden());
  EXPECT_TRUE(Find("Frame3").isHidden());
}

TEST_F(WindowOptionsTest, ClickWidensAgainAlsoWhereTheFocusHasStayed) {
  StartWithTeam();
  for (const char* narrowing : {"mnuMini", "Cubs"}) {
    QTest::mouseClick(&Box(12, 0), Qt::LeftButton);
    EXPECT_EQ(window->width(), kWide);
    if (narrowing == std::string("mnuMini")) {
      Choose(narrowing);
    } else {
      Click(narrowing);
    }
    EXPECT_EQ(window->width(), kNarrow);
    QTest::mouseClick(&Box(12, 0), Qt::RightButton);
    EXPECT_EQ(window->width(), kNarrow) << "a click of another button is no visit";
    QTest::mouseClick(&Box(12, 0), Qt::LeftButton);
    EXPECT_EQ(window->width(), kWide) << narrowing;
  }
}

TEST_F(WindowOptionsTest, HelpCoversTheGridUntilItIsDoubleClicked) {
  StartWithTeam();
  QTest::mouseClick(&Box(13, 3), Qt::LeftButton);
  Choose("mnuMini");
  EXPECT_EQ(window->findChild<QWidget*>("Frame5"), nullptr) << "the start waits for the help";
  Choose("mnuMorlekHELP");
  Choose("mnuMorlekHELP");
  EXPECT_TRUE(IsShown("Frame5"));
  EXPECT_EQ(Find("Frame5").geometry(), QRect(0, 0, 441, 633));
  EXPECT_EQ(Find("Text15").geometry(), QRect(4, 4, 433, 625));

  auto& help = Find<QPlainTextEdit>("Text15");
  const QString text = help.toPlainText();
  EXPECT_TRUE(text.startsWith("::::::::::::::\nMORLEK EDITOR\n"));
  EXPECT_TRUE(text.endsWith("\n\n\nDOUBLE CLICK TO CLOSE HELP"));
  QTest::mouseClick(help.viewport(), Qt::LeftButton);
  QTest::keyClick(&help, Qt::Key_Escape);
  QTest::keyClicks(&help, "x");
  QTest::keyClick(&help, Qt::Key_Tab);
  QTest::keyClick(&help, Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), &help) << "the covered grid takes no keys";
  EXPECT_TRUE(IsShown("Frame5"));
  EXPECT_EQ(help.toPlainText(), text);
  const QString team = LabelText("Label4(0)");
  QTest::keyClick(&help, Qt::Key_PageDown, Qt::ControlModifier);
  QTest::keyClick(&help, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(LabelText("Label4(0)"), team);
  EXPECT_TRUE(user.messages.empty());
  QTest::mouseDClick(help.viewport(), Qt::RightButton);
  EXPECT_TRUE(IsShown("Frame5"));
  DoubleClick(*help.viewport());
  EXPECT_FALSE(IsShown("Frame5"));
  EXPECT_EQ(QApplication::focusWidget(), &Box(13, 3));
  EXPECT_EQ(Box(13, 3).selectedText(), Box(13, 3).text());
  EXPECT_EQ(window->width(), kNarrow) << "closing the help is no visit to a features box";
}

TEST_F(WindowOptionsTest, ClosingTheHelpOverAHiddenGridGivesItNoKeys) {
  StartWithTeam();
  Box(12, 3).setFocus();
  const std::vector<QString> texts = GridTexts();
  Choose("mnuMorlekHELP");
  user.paths.emplace_back(ImagePath());
  Choose("mnuOpen");
  DoubleClick(*Find<QPlainTextEdit>("Text15").viewport());
  EXPECT_FALSE(IsShown("Frame1") || IsShown("Frame5"));
  QTest::keyClick(window->windowHandle(), Qt::Key_X);
  QTest::keyClick(window->windowHandle(), Qt::Key_Down);
  EXPECT_EQ(window->focusWidget(), nullptr);
  EXPECT_EQ(GridTexts(), texts);
  EXPECT_EQ(window->width(), kNarrow);
}

TEST_F(WindowOptionsTest, OnTopIsTurnedOnAndOffInPlace) {
  StartWithTeam();
  const auto* native = window->windowHandle();
  const WId id = window->winId();
  const auto is_on_top = [&] { return native->flags().testFlag(Qt::WindowStaysOnTopHint); };
  auto& on = Find<QAction>("mnuAlwaysOnTop");
  auto& off = Find<QAction>("mnuNotTop");
  EXPECT_TRUE(on.isVisible() && !off.isVisible());

  on.trigger();
  EXPECT_TRUE(is_on_top());
  EXPECT_TRUE(!on.isVisible() && off.isVisible());
  off.trigger();
  EXPECT_FALSE(is_on_top());
  EXPECT_TRUE(on.isVisible() && !off.isVisible());
  EXPECT_EQ(window->windowHandle(), native) << "the window was made anew";
  EXPECT_EQ(window->winId(), id);
}

}  // namespace
}  // namespace morlek

#include <QMenu>
#include <QMimeData>
#include <QTimer>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr auto kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

class PlayersWindowTest : public WindowTest {
 protected:
  [[nodiscard]] QStringList Row(int row) const { return Texts().mid(14 * row, 14); }
  void ClickBox(int column, int row) { QTest::mouseClick(&Box(column, row), Qt::LeftButton); }

  /// Opens the context menu of the box with the focus by its key, and chooses an item of it, if one
  /// is given. Gives those of the commands on players that are enabled.
  QStringList OpenMenu(const QString& chosen = {}) {
    QStringList enabled;
    QTimer look;
    look.callOnTimeout([&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      look.stop();
      QAction* found = nullptr;
      for (QAction* action : menu->actions()) {
        const QString caption = action->text().remove('&');
        if (action->isEnabled() && caption.contains("Player")) enabled << caption;
        if (caption == chosen) found = action;
      }
      menu->close();
      if (found != nullptr) found->trigger();
    });
    look.start(1);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    // On this platform no window may be active once a menu has closed.
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    return enabled;
  }

  [[nodiscard]] QStringList Texts() const {
    const std::vector<QString> texts = GridTexts();
    return {texts.begin(), texts.end()};
  }
};

TEST_F(PlayersWindowTest, ATradeAcrossTwoTeamsIsMadeByKeys) {
  StartWithTeam("Orioles");
  const QStringList oriole = Row(5);
  Click("Braves");
  const QStringList brave = Row(3);

  ClickBox(1, 3);
  Press(Qt::Key_C, kCtrlShift);
  EXPECT_TRUE(LabelText("labelStatus").endsWith(brave[0] + " is copied"));
  Click("Orioles");
  ClickBox(13, 5);
  Press(Qt::Key_X, kCtrlShift);
  EXPECT_EQ(Box(13, 5).selectedText(), Box(13, 5).text());
  Press(Qt::Key_S, Qt::ControlModifier);
  Click("Braves");
  ClickBox(1, 3);
  Press(Qt::Key_V, kCtrlShift);
  Press(Qt::Key_S, Qt::ControlModifier);

  EXPECT_EQ(user.messages.size(), 2U);
  Click("Braves");
  EXPECT_EQ(Row(3), oriole);
  Click("Orioles");
  EXPECT_EQ(Row(5), brave);
}

TEST_F(PlayersWindowTest, APlayerGoesFromSlotToSlotWithTheFocusAndStaysAmongHisKind) {
  StartWithTeam();
  const QStringList before = Texts();
  ClickBox(3, 2);
  for (int slot = 3; slot < 12; ++slot) Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Focused(), "Text3(11)");
  EXPECT_EQ(Row(11), before.mid(14 * 2, 14));
  EXPECT_EQ(Row(2), before.mid(14 * 3, 14));
  for (int slot = 12; slot < 18; ++slot) Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Focused(), "Text3(14)");
  for (int slot = 15; slot > 3; --slot) Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Focused(), "Text3(2)");
  EXPECT_EQ(Texts(), before);
}

TEST_F(PlayersWindowTest, TheMenuOffersWhatCanBeDone) {
  StartWithTeam();
  const QStringList batter = Row(0);
  QApplication::clipboard()->setText("no player");
  ClickBox(2, 0);
  EXPECT_EQ(OpenMenu("Copy Player"), (QStringList{"Copy Player", "Move Player Down"}));
  EXPECT_EQ(QApplication::clipboard()->text(), batter.join('\t'));
  ClickBox(4, 14);
  const QStringList with_player = {"Copy Player", "Paste Player", "Exchange with Copied Player",
                                   "Move Player Up"};
  EXPECT_EQ(OpenMenu("Paste Player"), with_player);
  EXPECT_EQ(Row(14), batter);

  // As a spreadsheet gives it back.
  QApplication::clipboard()->setText("X.Y\tSS\t7\tR\t1\t2\t3\t4\t0.3\t5\t6\t0\t1\t2\n");
  EXPECT_EQ(OpenMenu(), with_player);
  Press(Qt::Key_V, kCtrlShift);
  EXPECT_EQ(Box(9, 14).text(), ".300");
  QApplication::clipboard()->setText("no player");
  Press(Qt::Key_V, kCtrlShift);
  EXPECT_EQ(Box(1, 14).text(), "X.Y");
  OpenMenu("Copy Team");
  EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 25);
}

TEST_F(PlayersWindowTest, NoKeyReachesAGridThatIsCoveredOrHidden) {
  StartWithTeam();
  ClickBox(1, 3);
  Press(Qt::Key_C, kCtrlShift);
  ClickBox(1, 5);
  const QStringList before = Texts();
  const auto press_all = [this] {
    Press(Qt::Key_V, kCtrlShift);
    Press(Qt::Key_X, kCtrlShift);
    Press(Qt::Key_Down, Qt::AltModifier);
  };
  Choose("mnuMorlekHELP");
  press_all();
  EXPECT_EQ(Texts(), before);
  CloseHelp();
  ClickBox(1, 5);
  ChooseWith("mnuOpen", ImagePath());
  press_all();
  EXPECT_EQ(Texts(), before);
}

}  // namespace
}  // namespace morlek

#include <QMenu>
#include <QTimer>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr auto kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

class PlayersWindowTest : public WindowTest {
 protected:
  /// His texts, tabs between them.
  [[nodiscard]] QString Row(int row) const {
    QStringList texts;
    for (int column = 1; column <= 14; ++column) texts << Box(column, row).text();
    return texts.join('\t');
  }
  void ClickBox(int column, int row) { QTest::mouseClick(&Box(column, row), Qt::LeftButton); }

  /// Opens the context menu of the box with the focus by its key, and chooses an item of it, if one
  /// is given. Gives those that are enabled.
  std::string OpenMenu(const QString& chosen = {}) {
    QStringList enabled;
    QTimer look;
    look.callOnTimeout([&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      look.stop();
      QAction* found = nullptr;
      for (QAction* action : menu->actions()) {
        const QString caption = action->text().remove('&');
        if (action->isSeparator()) enabled << "|";
        if (action->isEnabled() && !caption.isEmpty()) enabled << caption;
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
    return enabled.join(", ").toStdString();
  }
};

TEST_F(PlayersWindowTest, TheMenuOffersWhatCanBeDone) {
  StartWithTeam();
  const QString batter = Row(0);
  QApplication::clipboard()->setText("A.B");
  ClickBox(1, 3);
  const QString name = Box(1, 3).text();
  EXPECT_EQ(
      OpenMenu("Copy"),
      "|, Cut, Copy, Paste, Delete, |, Select All, |, Copy Player, Move Player Up, Move Player "
      "Down, Copy Team");
  EXPECT_EQ(QApplication::clipboard()->text(), name);
  OpenMenu("Cut");
  EXPECT_EQ(Box(1, 3).text(), "");
  QApplication::clipboard()->setText("A.B");
  OpenMenu("Paste");
  EXPECT_EQ(Box(1, 3).text(), "A.B");
  EXPECT_EQ(OpenMenu("Undo"),
            "Undo, |, Paste, |, Select All, |, Copy Player, Move Player Up, Move Player Down, Copy "
            "Team");
  ClickBox(2, 0);
  EXPECT_EQ(OpenMenu("Copy Player").find("Move Player Up"), std::string::npos);
  EXPECT_EQ(QApplication::clipboard()->text(), batter);
  ClickBox(4, 14);
  const std::string with_player =
      "Redo, |, Cut, Copy, Paste, Delete, |, Select All, |, Copy Player, Paste Player, Exchange "
      "with Copied Player, Move Player Up, Copy Team";
  EXPECT_EQ(OpenMenu("Paste Player"), with_player);
  EXPECT_EQ(Row(14), batter);

  // As a spreadsheet gives it back.
  QApplication::clipboard()->setText("X.Y\tSS\t7\tR\t1\t2\t3\t4\t0.3\t5\t6\t0\t1\t2\n");
  EXPECT_NE(OpenMenu().find("Paste Player, Exchange"), std::string::npos);
  Press(Qt::Key_V, kCtrlShift);
  EXPECT_EQ(Box(9, 14).text(), ".300");
  QApplication::clipboard()->setText("no player");
  Press(Qt::Key_V, kCtrlShift);
  EXPECT_EQ(Box(1, 14).text(), "X.Y");
  OpenMenu("Copy Team");
  EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 25);
  EXPECT_TRUE(LabelText("labelStatus").contains("the team is copied"));
  const auto copied = [this](const QString& player) {
    Box(1, 14).setText(player);
    Press(Qt::Key_C, kCtrlShift);
    return LabelText("labelStatus")
        .section(" is copied", 0, 0)
        .section(QString::fromUtf8(" · "), -1);
  };
  EXPECT_EQ(copied("A\n3456789012345678901234"), "A 3456789012345678901234");
  EXPECT_EQ(copied("A23456789012345678901234Z"), QString::fromUtf8("A2345678901…45678901234Z"));
}

}  // namespace
}  // namespace morlek

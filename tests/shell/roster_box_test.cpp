#include <QClipboard>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

class RosterBoxTest : public WindowTest {
 protected:
  /// Where the home runs of a batter's row lie in the image file.
  static std::size_t HomeRunsAt(std::size_t row) { return kBraves - 1 + 32 * row + 26; }

  static void Paste(QLineEdit& box, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::mouseClick(&box, Qt::LeftButton);
    box.paste();
  }

  static void Leave(QLineEdit& box, Qt::FocusReason reason) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QApplication::sendEvent(&box, &out);
  }
  static void Return(QLineEdit& box, Qt::FocusReason reason) {
    QFocusEvent in(QEvent::FocusIn, reason);
    QApplication::sendEvent(&box, &in);
  }
};

TEST_F(RosterBoxTest, FocusSelectsTheWholeText) {
  StartWithTeam();
  for (int column = 1; column <= 14; ++column) {
    QLineEdit& box = Box(column, 20);
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(3, 10));
    EXPECT_EQ(box.selectedText(), box.text()) << "column " << column;
  }
  QTest::keyClick(&Box(14, 20), Qt::Key_Tab);
  EXPECT_EQ(Box(1, 21).selectedText(), Box(1, 21).text());
}

TEST_F(RosterBoxTest, LoadedTextIsReplacedByTyping) {
  StartWithTeam();
  QTest::mouseClick(&Box(1, 0), Qt::LeftButton);
  Click("Mets");
  QTest::keyClicks(&Box(1, 0), "N.NEW");
  EXPECT_EQ(Box(1, 0).text(), "N.NEW");
}

TEST_F(RosterBoxTest, ImportedTextIsReplacedByTypingAlsoBelowTheDialog) {
  StartWithTeam();
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += "I.MPORTED,\r\n";
  PutFile(folder / "team.txt", lines);
  QLineEdit& box = Box(1, 0);
  for (const bool away : {false, true}) {
    TypeInto(1, 0, "OLD");
    if (away) Leave(box, Qt::ActiveWindowFocusReason);
    user.paths.emplace_back(PathOf("team.txt"));
    Choose("mnuImport");
    if (away) Return(box, Qt::ActiveWindowFocusReason);
    EXPECT_EQ(box.selectedText(), "I.MPORTED") << away;
  }
}

TEST_F(RosterBoxTest, FocusThatTheWindowGivesByItselfSelectsToo) {
  StartWithTeam();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  other.close();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(QApplication::focusWidget(), &Box(1, 0));
  EXPECT_EQ(Box(1, 0).selectedText(), Box(1, 0).text());

  // Nor is it a return when the box was out of sight in the meantime.
  Box(1, 0).deselect();
  Leave(Box(1, 0), Qt::ActiveWindowFocusReason);
  Find("Frame1").hide();
  Find("Frame1").show();
  Return(Box(1, 0), Qt::ActiveWindowFocusReason);
  EXPECT_EQ(Box(1, 0).selectedText(), Box(1, 0).text());
}

TEST_F(RosterBoxTest, ReturnFromAMenuOrAnotherWindowKeepsTheSelection) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  for (const Qt::FocusReason reason :
       {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
    box.setFocus();
    box.setSelection(1, 2);
    Leave(box, reason);
    Return(box, reason);
    EXPECT_EQ(box.selectedText(), box.text().mid(1, 2)) << reason;
  }
}

TEST_F(RosterBoxTest, CharactersThatTheCodePageLacksBecomeQuestionMarks) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  Paste(box, QString::fromUtf8("J.Žö€中文😀"));
  EXPECT_EQ(box.text(), QString::fromUtf8("J.Žö€???"));
  QTest::mouseClick(&Box(1, 1), Qt::LeftButton);
  QTest::sendKeyEvent(QTest::Click, &Box(1, 1), Qt::Key_unknown, QString::fromUtf8("ж"),
                      Qt::NoModifier);
  EXPECT_EQ(Box(1, 1).text(), "?");
}

TEST_F(RosterBoxTest, AltAndALetterIsNoTextButAltGrIs) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  const QString before = box.text();
  box.setFocus();
  QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_O, "o", Qt::AltModifier);
  EXPECT_EQ(box.text(), before);
  QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString::fromUtf8("€"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(box.text(), QString::fromUtf8("€")) << "with AltGr it is";
}

TEST_F(RosterBoxTest, ShakyFirstClickKeepsTheSelectionAndALaterDragSelectsAPart) {
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

TEST_F(RosterBoxTest, DoubleClickSelectsTheWholeValue) {
  StartWithTeam();
  QLineEdit& box = Box(9, 0);
  QTest::mouseClick(&box, Qt::LeftButton);
  QTest::mouseClick(&box, Qt::LeftButton);
  DoubleClick(box);
  EXPECT_EQ(box.selectedText(), box.text());
}

TEST_F(RosterBoxTest, ReplacedCharactersLeaveTheCursorInItsPlace) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  Paste(box, "abc");
  box.setCursorPosition(1);
  box.insert(QString::fromUtf8("😀"));
  box.insert("X");
  EXPECT_EQ(box.text(), "a?Xbc");
}

TEST_F(RosterBoxTest, LineBreaksAreNotPasted) {
  StartWithTeam();
  Paste(Box(3, 0), "4\r\n2\n");
  EXPECT_EQ(Box(3, 0).text(), "42");
}

TEST_F(RosterBoxTest, TextsOfEveryWayReachTheSave) {
  StartWithTeam();
  // Typed, pasted, cut, undone, and set by an assistive tool.
  TypeInto(10, 0, "7");
  Paste(Box(10, 1), "8");
  Box(10, 2).setFocus();
  Box(10, 2).cut();
  TypeInto(10, 3, "9");
  Box(10, 3).undo();
  Box(10, 4).setText("11");
  Click("Command1");
  const std::string image = GetFile(ImageFile());
  const auto home_runs = [&image](std::size_t row) {
    return static_cast<int>(image.at(HomeRunsAt(row)));
  };
  const auto before = [](std::size_t row) {
    return static_cast<int>(Sample().at(HomeRunsAt(row)));
  };
  EXPECT_EQ(home_runs(0), 7);
  EXPECT_EQ(home_runs(1), 8);
  EXPECT_EQ(home_runs(2), before(2)) << "an empty cell is not written";
  EXPECT_EQ(home_runs(3), before(3));
  EXPECT_EQ(home_runs(4), 11);
}

}  // namespace
}  // namespace morlek

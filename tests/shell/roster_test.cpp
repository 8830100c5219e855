#include "shell/code_page_text.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class RosterTest : public WindowTest {
 protected:
  static void Leave(QLineEdit& box, Qt::FocusReason reason) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QApplication::sendEvent(&box, &out);
  }
  static void Return(QLineEdit& box, Qt::FocusReason reason) {
    QFocusEvent in(QEvent::FocusIn, reason);
    QApplication::sendEvent(&box, &in);
  }

  void ExpectAllSelected(int column, int row) const {
    EXPECT_EQ(QApplication::focusWidget(), &Box(column, row));
    EXPECT_EQ(Box(column, row).selectedText(), Box(column, row).text()) << "column " << column;
  }
};

TEST_F(RosterTest, FocusLoadAndImportSelectTheWholeText) {
  StartWithTeam();
  for (int column = 1; column <= 14; ++column) {
    QTest::mouseClick(&Box(column, 20), Qt::LeftButton, Qt::NoModifier, QPoint(3, 10));
    ExpectAllSelected(column, 20);
  }
  Press(Qt::Key_Tab);
  ExpectAllSelected(1, 21);
  QTest::mouseClick(&Box(1, 21), Qt::LeftButton);
  DoubleClick(Box(1, 21));
  ExpectAllSelected(1, 21);
  Click("Mets");
  ExpectAllSelected(1, 21);
  for (const bool away : {false, true}) {
    TypeInto(1, 0, "OLD");
    if (away) Leave(Box(1, 0), Qt::ActiveWindowFocusReason);
    ChooseWith("mnuImport", TeamFile("I.MPORTED"));
    if (away) Return(Box(1, 0), Qt::ActiveWindowFocusReason);
    EXPECT_EQ(Box(1, 0).selectedText(), "I.MPORTED") << away;
  }
}

TEST_F(RosterTest, ReturnFromAMenuOrAnotherWindowKeepsTheSelectionOfABoxThatHadIt) {
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  other.close();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  ExpectAllSelected(1, 0);

  for (const Qt::FocusReason reason :
       {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
    box.setFocus();
    box.setSelection(1, 2);
    Leave(box, reason);
    Return(box, reason);
    EXPECT_EQ(box.selectedText(), box.text().mid(1, 2)) << reason;
  }
  // Nor is it a return when the box was out of sight in the meantime.
  Leave(box, Qt::ActiveWindowFocusReason);
  Find("Frame1").hide();
  Find("Frame1").show();
  Return(box, Qt::ActiveWindowFocusReason);
  ExpectAllSelected(1, 0);
}

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
  std::string own;
  for (int byte = 0x80; byte < 0xA0; ++byte) own += static_cast<char>(byte);
  EXPECT_EQ(FromCodePage(own + "\xA0\xC4\xFF"),
            QString::fromUtf8("€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
                              "\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0Äÿ"));
  StartWithTeam();
  QLineEdit& box = Box(1, 0);
  PasteInto(1, 0, QString::fromUtf8("J.Žö€中文😀\r\n"));
  EXPECT_EQ(box.text(), QString::fromUtf8("J.Žö€???"));
  box.setCursorPosition(1);
  box.insert(QString::fromUtf8("😀"));
  box.insert("X");
  EXPECT_EQ(box.text(), QString::fromUtf8("J?X.Žö€???")) << "the cursor stays in its place";
  PasteInto(1, 1, "");
  EXPECT_EQ(Box(1, 1).text(), "") << "nothing replaces what is selected, as ever";
  PasteInto(1, 1, QString(10000000, 'x'));
  EXPECT_EQ(Box(1, 1).text().size(), 32767);
  QApplication::clipboard()->setText("4\r\n2\n");
  Box(3, 1).setFocus();
  Box(3, 1).paste();
  EXPECT_EQ(Box(3, 1).text(), "42");

  QTest::sendKeyEvent(QTest::Click, &Box(3, 1), Qt::Key_O, "o", Qt::AltModifier);
  EXPECT_EQ(Box(3, 1).text(), "42") << "a key for a menu";
  QTest::sendKeyEvent(QTest::Click, &Box(3, 1), Qt::Key_unknown, QString::fromUtf8("€"),
                      Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(Box(3, 1).text(), QString::fromUtf8("42€")) << "but with AltGr";
}

TEST_F(RosterTest, TabGoesAlongARowAndThenToTheNext) {
  StartWithTeam();
  Box(9, 14).setFocus();
  const QStringList expected = {"Text10(14)", "Text11(14)", "Text12(14)", "Text13(14)",
                                "Text14(14)", "Text1(15)",  "Text2(15)",  "Text3(15)",
                                "Text4(15)",  "Text9(15)",  "Text5(15)",  "Text6(15)"};
  for (const QString& name : expected) {
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focused(), name);
  }
  Press(Qt::Key_Backtab);
  EXPECT_EQ(Focused(), "Text5(15)");
}

TEST_F(RosterTest, UpDownAndReturnKeepThePlaceInTheRow) {
  StartWithTeam();
  struct Step {
    const char* from;
    Qt::Key key;
    const char* to;
  };
  const std::vector<Step> steps = {{"Text5(14)", Qt::Key_Down, "Text9(15)"},
                                   {"Text9(15)", Qt::Key_Up, "Text5(14)"},
                                   {"Text3(0)", Qt::Key_Return, "Text3(1)"},
                                   {"Text1(0)", Qt::Key_Up, "Text1(0)"},
                                   {"Text14(24)", Qt::Key_Down, "Text14(24)"}};
  for (const Step& step : steps) {
    Find(step.from).setFocus();
    Press(step.key);
    EXPECT_EQ(Focused(), step.to);
  }
}

TEST_F(RosterTest, TeamsCanBePickedByKeyboard) {
  Start(std::nullopt);
  user.messages.clear();
  const auto press = [this](Qt::Key key) {
    Press(key, Qt::ControlModifier);
    return LabelText("Label4(0)");
  };
  press(Qt::Key_PageDown);
  EXPECT_TRUE(user.messages.empty()) << "no team is loaded before there is an image";
  ChooseWith("mnuOpen", ImagePath());
  EXPECT_EQ(press(Qt::Key_PageUp), "");
  for (int image = 0; image < 2; ++image) {
    ChooseWith("mnuOpen", ImagePath());
    EXPECT_EQ(press(Qt::Key_PageDown), "ATLANTA BRAVES") << "each image starts anew";
    EXPECT_EQ(press(Qt::Key_PageUp), "TORONTO BLUE JAYS");
    EXPECT_EQ(press(Qt::Key_PageDown), "ATLANTA BRAVES");
    EXPECT_EQ(press(Qt::Key_PageDown), "BALTIMORE ORIOLES");
  }
}

}  // namespace
}  // namespace morlek

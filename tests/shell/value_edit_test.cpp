#include "ui/value_edit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>
#include <utility>

namespace morlek {
namespace {

class ValueEditTest : public ::testing::Test {
 protected:
  ValueEditTest() {
    edit.setText("VALUE");
    for (QLineEdit* each : {static_cast<QLineEdit*>(&edit), &other}) each->resize(100, 20);
    other.move(0, 30);
    QObject::connect(&edit, &ValueEdit::Visited, &edit, [this] { reported += "visited "; });
    QObject::connect(&edit, &ValueEdit::Entered, &edit, [this] { reported += "entered "; });
    QObject::connect(&edit, &ValueEdit::Left, &edit, [this] { reported += "left "; });
    window.show();
    window.activateWindow();
    other.setFocus();
  }

  void Send(QEvent::Type type, Qt::FocusReason reason) {
    QFocusEvent event(type, reason);
    QApplication::sendEvent(&edit, &event);
  }

  /// What has been reported since the last call, and what is selected.
  std::string Reported() {
    return std::exchange(reported, "") + "[" + edit.selectedText().toStdString() + "]";
  }

  std::string reported;
  QWidget window;
  ValueEdit edit{&window};
  QLineEdit other{&window};
};

TEST_F(ValueEditTest, TheFocusBeginsAVisitOnceHoweverItComesAndAnotherClickIsAVisitToo) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::OtherFocusReason}) {
    edit.setFocus(reason);
    EXPECT_EQ(Reported(), "entered visited [VALUE]") << reason;
    edit.setSelection(1, 2);
    other.setFocus(reason);
    EXPECT_EQ(Reported(), "left []") << reason;
    EXPECT_EQ(edit.cursorPosition(), 0) << "a long text shows how it begins";
  }
  QTest::mouseClick(&edit, Qt::LeftButton);
  EXPECT_EQ(Reported(), "entered visited [VALUE]");
  QTest::mouseClick(&edit, Qt::LeftButton, Qt::NoModifier, {99, 10});
  EXPECT_EQ(Reported(), "visited []");
  QTest::mouseDClick(&edit, Qt::LeftButton);
  QTest::mouseRelease(&edit, Qt::LeftButton);
  EXPECT_EQ(Reported(), "[VALUE]");
  QTest::mouseClick(&edit, Qt::RightButton, Qt::NoModifier, {99, 10});
  EXPECT_EQ(Reported(), "[VALUE]");
}

TEST_F(ValueEditTest, AShortAbsenceEndsNoVisit) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  // Without an absence before it, it is no return.
  Send(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  EXPECT_EQ(Reported(), "entered visited []");
  edit.setFocus();
  QTest::keyClicks(&edit, "NEW");
  edit.setSelection(1, 2);
  reported.clear();
  for (const Qt::FocusReason reason :
       {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    Send(QEvent::FocusOut, reason);
    edit.deselect();
    Send(QEvent::FocusIn, reason);
    EXPECT_EQ(Reported(), "[EW]") << reason;
  }
  Send(QEvent::FocusOut, Qt::PopupFocusReason);
  edit.ShowText("PICKED");
  edit.deselect();
  Send(QEvent::FocusIn, Qt::PopupFocusReason);
  EXPECT_EQ(Reported(), "[PICKED]");

  Send(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  edit.hide();
  edit.show();
  Send(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  EXPECT_EQ(Reported(), "left entered visited []") << "out of sight, it is no return";
}

}  // namespace
}  // namespace morlek

#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

class MenuTest : public WindowTest {};

TEST_F(MenuTest, KeysOfTheLineEditorReachTheMenuFromABox) {
  StartWithTeam();
  QLineEdit& box = Box(1, 4);
  const QString before = box.text();
  QTest::mouseClick(&box, Qt::LeftButton);

  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(user.messages.size(), 1U);
  EXPECT_EQ(user.messages[0].title, "MORLEK EDITOR");
  EXPECT_TRUE(user.messages[0].text.startsWith("MORLEK EDITOR for SNES Dale Harrow Baseball.\n"));
  EXPECT_TRUE(user.messages[0].text.contains(QRegularExpression(R"(\nVersion \d+\.\d+\.\d+,)")));
  EXPECT_EQ(user.messages[0].icon, Message::Icon::kNone);

  QTest::keyClick(&box, Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(user.save_questions.size(), 1U);
  QTest::keyClick(&box, Qt::Key_H, Qt::ControlModifier);
  EXPECT_TRUE(IsShown("Frame5"));
  EXPECT_EQ(box.text(), before);
}

TEST_F(MenuTest, QuitAsksAndNoKeepsTheProgram) {
  StartWithTeam();
  user.answers = {false, true};
  Choose("mnuQuit");
  ASSERT_EQ(user.yes_no_questions.size(), 1U);
  EXPECT_EQ(user.yes_no_questions[0].text,
            "Are you sure you want to quit MORLEK EDITOR?\n\nIf not then click NO.");
  EXPECT_EQ(user.yes_no_questions[0].title, "MORLEK EDITOR");
  EXPECT_TRUE(window->isVisible());

  Choose("mnuQuit");
  EXPECT_FALSE(window->isVisible());
}

TEST_F(MenuTest, CloseBoxDoesNotAsk) {
  StartWithTeam();
  TypeInto(1, 0, "EDITED");
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(user.yes_no_questions.empty());
}

}  // namespace
}  // namespace morlek

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

#include "shell/splash_window.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

// What a person reads in the window, as it is to stand there.
// clang-format off
constexpr char kMenuKeys[] =
    "mnuOpen Ctrl+O, mnuQuit Ctrl+Q, mnuImport Ctrl+I, mnuExport Ctrl+E, mnuMini Ctrl+M, "
    "mnuAlwaysOnTop Ctrl+T, mnuNotTop Ctrl+N, mnuMorlekHELP Ctrl+H, mnuAboutMorlek Ctrl+A";
// clang-format on

class WindowContentsTest : public WindowTest {
 protected:
  /// SAVE keeps the numbers that the head of a box's column says that it takes, and none beyond.
  static void ExpectToTake(QLineEdit& box, const QString& accepted) {
    static const QRegularExpression range(R"(^([.\d]+) to ([.\dA-F]+)( in hexadecimal)?)");
    const auto match = range.match(accepted);
    if (!match.hasMatch()) return;
    const int base = match.hasCaptured(3) ? 16 : 10;
    const auto beside = [base](QString edge, int more) {
      const auto point = edge.indexOf('.');
      const int number = edge.remove('.').toInt(nullptr, base) + more;
      return point < 0 || number < 0 ? QString::number(number, base)
                                     : QString::number(number).insert(point, '.');
    };
    const QStringList good = {match.captured(1), match.captured(2)};
    const QStringList bad = {"ZZ", beside(good[0], -1), beside(good[1], +1)};
    const QString before = box.text();
    const auto takes = [&box](const QString& text) {
      box.setText(text);
      return !box.toolTip().contains("SAVE");
    };
    const std::string where = box.objectName().toStdString() + ": ";
    for (const QString& text : good) EXPECT_TRUE(takes(text)) << where << text.toStdString();
    for (const QString& text : bad) EXPECT_FALSE(takes(text)) << where << text.toStdString();
    box.setText(before);
  }
};

TEST_F(WindowContentsTest, MenuKeys) {
  Start(std::nullopt);
  QStringList keys;
  for (const QAction* menu : window->menuBar()->actions()) {
    for (const QAction* item : menu->menu()->actions()) {
      keys << item->objectName() + " " + item->shortcut().toString();
    }
  }
  EXPECT_EQ(keys.join(", "), kMenuKeys);
}

TEST_F(WindowContentsTest, ColumnHeadsAndTheBoxesBelow) {
  StartWithTeam();
  for (int index = 1; index <= 28; ++index) {
    const auto& head = Find<QLabel>(QString("Label4(%1)").arg(index));
    const QPoint below = head.geometry().center() + QPoint(0, 24);
    auto* box = qobject_cast<QLineEdit*>(Find("Frame1").childAt(below));
    ASSERT_NE(box, nullptr) << index;
    const QString accepted = head.accessibleDescription();
    EXPECT_FALSE(accepted.isEmpty() || head.text().isEmpty());
    EXPECT_EQ(accepted.contains("Page Down"), accepted.contains("hexadecimal"));
    EXPECT_EQ(accepted.contains("Alt+Down"), head.text() == "P.NAME");
    EXPECT_EQ(head.toolTip(), box->accessibleName().section(", ", 0, 0) + ", " + accepted);
    EXPECT_LE(head.fontMetrics().horizontalAdvance(head.text()), head.width()) << index;
    ExpectToTake(*box, accepted);
  }
}

TEST_F(WindowContentsTest, NamesHintsAndTips) {
  Start(std::nullopt);
  user.paths = {ImagePath()};
  QWidget& hint = Find("labelHint");
  QTest::mouseClick(&hint, Qt::RightButton);
  QTest::mousePress(&hint, Qt::LeftButton);
  QTest::mouseRelease(&hint, Qt::LeftButton, {}, {-9, -9});
  EXPECT_FALSE(IsShown("Toolbar1"));
  Click("labelHint");
  EXPECT_TRUE(IsShown("Toolbar1"));
  Click("labelHint");
  EXPECT_EQ(user.open_questions.size(), 2U) << "only who asks for an image opens one";
  EXPECT_EQ(Find("Label1").toolTip(),
            "This will edit the skin color and facial features of a player but not hair color. "
            "Click to make selection.");
  EXPECT_EQ(Box(9, 14).accessibleName(), "batting average, batter 15");
  EXPECT_EQ(Box(9, 15).accessibleName(), "earned run average, pitcher 1");
  EXPECT_EQ(Find("Picture3(13)").accessibleName(), "legs 10");
}

TEST_F(WindowContentsTest, WhatAnAssistiveToolPressesDoesWhatAClickDoes) {
  StartWithTeam();
  for (const char* over_grid : {"labelStatus", "Label3"}) {
    const QWidget& foot = Find(over_grid);
    EXPECT_EQ(foot.parentWidget()->childAt(foot.geometry().center()), &foot) << "shows its tip";
  }
  const auto press = [this](const QString& name) {
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&Find(name))->actionInterface();
    actions->doAction(actions->actionNames().constFirst());
  };
  press("Cubs");
  EXPECT_EQ(Find("Label4(0)").accessibleDescription(), "CHICAGO CUBS");
  EXPECT_EQ(Find("Cubs").toolTip(), "Cubs");

  Box(12, 3).setFocus();
  const QString body = Box(13, 3).text();
  press("Picture2(5)");
  EXPECT_EQ(Box(13, 3).text(), body) << "out of view";
  press("Picture1(5)");
  EXPECT_EQ(Box(12, 3).text(), "24");
  Choose("mnuMini");
  press("Picture1(6)");
  EXPECT_EQ(Box(12, 3).text(), "24") << "right of the narrow window";

  {
    QDialog question;  // as one of the editor's own stands over the window
    question.setModal(true);
    question.show();
    press("Mets");
    Choose("mnuAboutMorlek");
    press("Command1");
    QTest::qWait(200);  // for which the toolkit holds the button down
  }
  EXPECT_EQ(Find("Label4(0)").accessibleDescription(), "CHICAGO CUBS");
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(WindowContentsTest, EveryControlHasANameAndARole) {
  StartWithTeam();
  Choose("mnuMorlekHELP");
  const SplashWindow splash;
  EXPECT_EQ(QStringList({window->objectName(), window->windowTitle(), window->accessibleName(),
                         splash.objectName(), splash.windowTitle(), splash.accessibleName()}),
            QStringList({"Form1", "MORLEK EDITOR", "MORLEK EDITOR", "frmSplash", "Form2",
                         "MORLEK EDITOR"}));
  for (QWidget* widget : window->findChildren<QWidget*>() + splash.findChildren<QWidget*>()) {
    const QAccessibleInterface& accessible = *QAccessible::queryAccessibleInterface(widget);
    // What the toolkit puts into a control of ours speaks through that control.
    const QString id = widget->objectName();
    const bool is_menu = accessible.role() == QAccessible::PopupMenu;
    const bool is_part = accessible.role() == QAccessible::ScrollBar || (is_menu && id.isEmpty());
    if (is_part || id.startsWith("qt_")) continue;
    // A label's own text is no name for what it says.
    const QString name = widget->accessibleDescription().isEmpty()
                             ? accessible.text(QAccessible::Name)
                             : widget->accessibleName();
    EXPECT_TRUE(!name.isEmpty() && accessible.role() != QAccessible::NoRole)
        << widget->metaObject()->className() << " " << widget->objectName().toStdString();
  }

  CloseHelp();
  // Where the focus has been, boxes are read in the order of the sheet all the same.
  for (const int row : {3, 17, 5, 24}) Box(1, row).setFocus();
  QStringList order;
  for (const QObject* child : Find("Frame1").children()) {
    if (child->objectName().startsWith("Text1(")) order << child->objectName();
  }
  ASSERT_EQ(order.size(), 25);
  for (int row = 0; row < 25; ++row) EXPECT_EQ(order[row], QString("Text1(%1)").arg(row));
}

}  // namespace
}  // namespace morlek

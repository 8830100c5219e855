#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>

#include "shell/window_fixture.h"
#include "ui/theme.h"

namespace morlek {
namespace {

class HonestMarksTest : public WindowTest {
 protected:
  /// What the desktop sends when files are dropped over a widget; true when they were taken.
  static bool Drop(QWidget& over, const QList<QUrl>& files,
                   Qt::DropActions actions = Qt::CopyAction) {
    QMimeData data;
    data.setUrls(files);
    data.setText("their paths");
    QDragEnterEvent enter(over.rect().center(), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&over, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(over.rect().center(), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&over, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    QCoreApplication::processEvents();
    return drop.isAccepted();
  }
};

TEST_F(HonestMarksTest, ADroppedFileIsTakenAsIfItHadBeenChosen) {
  const QUrl image = QUrl::fromLocalFile(ImagePath());
  const QUrl team = QUrl::fromLocalFile(TeamFile("D.ROP"));
  MakeWindow();
  EXPECT_FALSE(Drop(*window, {image})) << "no image has been asked for yet";
  StartWithTeam();
  EXPECT_TRUE(Drop(Box(1, 0), {team}));
  EXPECT_EQ(Box(1, 24).text(), "D.ROP");
  EXPECT_FALSE(Drop(*window, {QUrl::fromLocalFile(PathOf("."))}));
  EXPECT_FALSE(Drop(*window, {image, image}));
  EXPECT_FALSE(Drop(*window, {image}, Qt::MoveAction)) << "the file would be deleted";
  EXPECT_FALSE(Drop(*window, {QUrl("https://example.org/game.smc")}));
  EXPECT_TRUE(IsShown("Frame1"));
  EXPECT_TRUE(Drop(*window, {image}, Qt::CopyAction | Qt::MoveAction));
  EXPECT_FALSE(IsShown("Frame1"));
  EXPECT_TRUE(user.messages.empty());
  EXPECT_EQ(LabelText("labelStatus"), QString::fromUtf8("game.smc · Braves: 350 changes not saved, "
                                                        "Ctrl+Z goes back"));
  EXPECT_TRUE(Find("labelStatus").toolTip().endsWith("/game.smc")) << "the whole path";
}

TEST_F(HonestMarksTest, TheWindowTellsWhereOneIs) {
  StartWithTeam();
  const auto is_checked = [this](const QString& name) {
    return static_cast<bool>(QAccessible::queryAccessibleInterface(&Find(name))->state().checked);
  };
  // What an assistive tool presses does what a click does.
  const auto press = [this](const QString& name) {
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&Find(name))->actionInterface();
    actions->doAction(actions->actionNames().constFirst());
  };
  press("Cubs");
  EXPECT_EQ(Find("Label4(0)").accessibleDescription(), "CHICAGO CUBS");
  EXPECT_TRUE(is_checked("Cubs") && !is_checked("Braves"));

  Box(12, 3).setFocus();
  const QString body = Box(13, 3).text();
  press("Picture2(5)");
  EXPECT_EQ(Box(13, 3).text(), body) << "out of view";
  press("Picture1(5)");
  EXPECT_EQ(Box(12, 3).text(), "24");
  EXPECT_TRUE(is_checked("Picture1(5)") && !is_checked("Picture1(6)"));
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
    EXPECT_FALSE(Drop(*window, {QUrl::fromLocalFile(ImagePath())}));
  }
  EXPECT_EQ(Find("Label4(0)").accessibleDescription(), "CHICAGO CUBS");
  EXPECT_TRUE(user.messages.empty());

  Click("Braves");
  QFile::remove(ImagePath());
  Click("Mets");
  EXPECT_FALSE(is_checked("Mets") || is_checked("Braves")) << "no team is shown";
}

}  // namespace
}  // namespace morlek

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QToolTip>

#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class HonestMarksTest : public WindowTest {
 protected:
  [[nodiscard]] QString Tip(int column, int row) const { return Box(column, row).toolTip(); }
  [[nodiscard]] QString Status() const { return LabelText("labelStatus"); }

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

TEST_F(HonestMarksTest, TellBeforeSaveWhatALoadWillShow) {
  struct Marked {
    int column;
    const char *typed, *tip;
  };
  const std::vector<Marked> cells = {{1, "J.SM1TH", "SAVE stores J.SMMTH"},
                                     {2, "ZZ", "SAVE stores LF"},
                                     {3, "300", "SAVE stores 21"},
                                     {4, "X", "SAVE stores L; the image holds that already"},
                                     {5, "12", "SAVE skips this; the image keeps"},
                                     {9, ".999", "SAVE stores ."},
                                     {10, "255", "SAVE stores "}};
  constexpr QColor kRed(0xd3, 0x2f, 0x2f);
  StartWithTeam();
  for (const Marked& cell : cells) {
    EXPECT_EQ(CountOf(Seen(Box(cell.column, 1)), kRed), 0);
    TypeInto(cell.column, 1, cell.typed);
    EXPECT_TRUE(Tip(cell.column, 1).startsWith(cell.tip)) << Tip(cell.column, 1).toStdString();
    EXPECT_EQ(Box(cell.column, 1).accessibleDescription(), Tip(cell.column, 1));
    Box(1, 9).setFocus();
    EXPECT_GE(CountOf(Seen(Box(cell.column, 1)), kRed), 12);
  }
  EXPECT_TRUE(Tip(3, 1).endsWith("\nNot saved yet; the image holds 44")) << Tip(3, 1).toStdString();
  EXPECT_EQ(Status(), QString::fromUtf8("game.smc · 7 changes not saved · "
                                        "SAVE will not keep 7 cells (F8)"));
  EXPECT_EQ(Find("labelStatus").accessibleDescription(), Status());
  EXPECT_TRUE(Find("labelStatus").toolTip().endsWith("game.smc"));
  TypeInto(1, 5, Box(1, 5).text().toLower());
  TypeInto(12, 5, "0" + Box(12, 5).text());
  EXPECT_EQ(Tip(1, 5) + Tip(12, 5), "") << "capitals and leading zeros make no difference";

  QStringList told;
  for (const Marked& cell : cells) {
    told << Tip(cell.column, 1)
                .section('\n', 0, 0)
                .remove("; the image holds that already")
                .section(' ', -1);
  }
  Click("Command1");
  Click("Braves");
  for (const Marked& cell : cells) {
    EXPECT_EQ(Box(cell.column, 1).text(), told.takeFirst()) << cell.column;
    EXPECT_EQ(Tip(cell.column, 1), "");
  }
}

TEST_F(HonestMarksTest, WhatTheDiskRefusedStaysMarked) {
  StartWithTeam();
  const QImage calm = Seen(Find("Command1"));
  TypeInto(3, 0, "24");
  TypeInto(1, 6, "X.ABCDEFGHIJ");
  TypeInto(3, 6, "9");
  EXPECT_EQ(Tip(1, 6).section(';', 0, 0), "SAVE ends here, because this name is too long");
  EXPECT_TRUE(Tip(3, 6).startsWith("SAVE does not reach this, because the name of batter 7"));
  Box(1, 6).setText("X.ABC");
  QFile::remove(ImagePath());
  Click("Command1");
  EXPECT_EQ(user.messages.back().text, "Your changes have been saved.");
  EXPECT_EQ(Tip(3, 0), "Not saved yet; the image holds 21");
  Box(1, 9).setFocus();
  EXPECT_GT(CountOf(Seen(Box(3, 0)), QColor(0x1f, 0x5f, 0xd0), 60), 5);
  EXPECT_NE(Seen(Find("Command1")), calm);
  PutFile(ImageFile(), Sample());
  QString behind_message;
  user.while_told = [&] { behind_message = Status() + Tip(3, 0); };
  Click("Command1");
  EXPECT_EQ(behind_message, "game.smc");
  EXPECT_EQ(Status() + Tip(3, 0), "game.smc");
}

TEST_F(HonestMarksTest, F8GoesRoundTheCellsThatSaveWillNotKeep) {
  StartWithTeam();
  for (const int row : {0, 17, 4}) TypeInto(2, row, "ZZ");
  Find("Command1").setFocus();
  for (const char* next : {"Text2(0)", "Text2(4)", "Text2(17)", "Text2(0)"}) {
    Press(Qt::Key_F8);
    EXPECT_EQ(Focused(), next);
    EXPECT_EQ(QToolTip::text(), Find(next).toolTip()) << "who comes by keys has no pointer";
  }
  Press(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(Focused(), "Text2(17)");
}

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
  EXPECT_EQ(Status(), "game.smc");
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
  const QImage ringed = Seen(Find("Cubs"));

  Box(12, 3).setFocus();
  const QString body = Box(13, 3).text();
  EXPECT_EQ(GroundOf(Seen(Box(1, 3))), QColor(0xff, 0xf5, 0xdb));
  press("Picture2(5)");
  EXPECT_EQ(Box(13, 3).text(), body) << "out of view";
  press("Picture1(5)");
  EXPECT_EQ(Box(12, 3).text(), "24");
  EXPECT_TRUE(is_checked("Picture1(5)") && !is_checked("Picture1(6)"));
  Box(2, 8).setFocus();
  EXPECT_EQ(GroundOf(Seen(Box(1, 8))), QColor(0xee, 0xf4, 0xff));
  Choose("mnuMini");
  press("Picture1(6)");
  EXPECT_EQ(Box(12, 3).text(), "24") << "right of the narrow window";
  EXPECT_EQ(GroundOf(Seen(Box(1, 3))), QColor(0xf7, 0xf9, 0xfc));
  Find("Command1").setFocus();
  EXPECT_EQ(GroundOf(Seen(Box(1, 8))), QColor(0xff, 0xff, 0xff));

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
  EXPECT_NE(Seen(Find("Cubs")), ringed);
  QFile::remove(ImagePath());
  Click("Mets");
  EXPECT_FALSE(is_checked("Mets") || is_checked("Braves")) << "no team is shown";
  EXPECT_EQ(Find("labelHint").accessibleDescription(), LabelText("labelHint"));
  EXPECT_EQ(Find("Label3").accessibleDescription(), "3C");
}

}  // namespace
}  // namespace morlek

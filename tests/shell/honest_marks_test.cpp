#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class HonestMarksTest : public WindowTest {
 protected:
  struct Marked {
    int column;
    const char* typed;
    const char* tip;
    const char* after;
  };

  [[nodiscard]] QString Tip(int column, int row) const { return Box(column, row).toolTip(); }
  [[nodiscard]] QString Status() const { return LabelText("labelStatus"); }

  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused == nullptr ? window.get() : focused, Qt::Key(key), modifiers);
  }

  /// Clicks a box and pastes a clipboard text by its key.
  void PasteInto(int column, int row, const QString& text) {
    QApplication::clipboard()->setText(text);
    Box(column, row).setFocus();
    Press(Qt::Key_V, Qt::ControlModifier);
  }

  /// What the desktop sends when things are dropped over a widget; true when they were taken.
  bool Drop(QWidget& over, const QMimeData& data, Qt::DropActions actions = Qt::CopyAction) {
    QDragEnterEvent enter(over.rect().center(), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&over, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(over.rect().center(), actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&over, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    QCoreApplication::processEvents();
    return drop.isAccepted();
  }

  bool DropFiles(QWidget& over, const QStringList& paths,
                 Qt::DropActions actions = Qt::CopyAction) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
    data.setUrls(urls);
    data.setText(paths.join('\n'));
    return Drop(over, data, actions);
  }
};

TEST_F(HonestMarksTest, TellBeforeSaveWhatALoadWillShow) {
  StartWithTeam();
  const std::vector<Marked> cells = {{1, "J.SM1TH", "SAVE stores J.SMMTH", "J.SMMTH"},
                                     {2, "ZZ", "SAVE stores LF", "LF"},
                                     {3, "300", "SAVE stores 21", "21"},
                                     {4, "X", "SAVE stores L", "L"},
                                     {5, "12", "SAVE skips this; the image keeps", ""},
                                     {9, ".999", "SAVE stores .", ""},
                                     {10, "255", "SAVE stores ", ""}};
  for (const Marked& cell : cells) {
    const QImage unmarked = Seen(Box(cell.column, 1));
    TypeInto(cell.column, 1, cell.typed);
    EXPECT_TRUE(Tip(cell.column, 1).startsWith(cell.tip)) << Tip(cell.column, 1).toStdString();
    EXPECT_EQ(Box(cell.column, 1).accessibleDescription(), Tip(cell.column, 1));
    Box(1, 9).setFocus();
    EXPECT_GE(CountOf(Seen(Box(cell.column, 1)), QColor(0xd3, 0x2f, 0x2f)), 12);
    EXPECT_EQ(CountOf(unmarked, QColor(0xd3, 0x2f, 0x2f)), 0);
  }
  EXPECT_TRUE(Tip(3, 1).endsWith("\nNot saved yet; the image holds 44")) << Tip(3, 1).toStdString();
  EXPECT_TRUE(Status().startsWith("game.smc")) << Status().toStdString();
  EXPECT_TRUE(Status().contains("7 changes not saved")) << Status().toStdString();
  EXPECT_TRUE(Status().contains("will not keep 7 cells")) << Status().toStdString();
  EXPECT_EQ(Find("labelStatus").accessibleDescription(), Status());
  EXPECT_TRUE(Find("labelStatus").toolTip().endsWith("game.smc"));

  std::vector<QString> told;
  for (const Marked& cell : cells) {
    told.push_back(Tip(cell.column, 1).section('\n', 0, 0).section(' ', -1));
  }
  Click("Command1");
  Click("Braves");
  for (std::size_t place = 0; place < cells.size(); ++place) {
    EXPECT_EQ(Box(cells[place].column, 1).text(), told[place]) << cells[place].column;
    EXPECT_EQ(Tip(cells[place].column, 1), "");
  }
  EXPECT_EQ(Status(), "game.smc");
}

TEST_F(HonestMarksTest, ALoadedTeamShowsWhatAnUntouchedSaveWouldChange) {
  std::vector<std::uint8_t> image = Sample();
  image.at(kBraves - 1 + 32 * 3 + 11) = 0x09;
  image.at(kBraves - 1 + 32 * 4 + 2) = 0x36;
  PutFile(ImageFile(), image);
  StartWithTeam();
  EXPECT_EQ(Tip(5, 3), "SAVE stores 10");
  EXPECT_TRUE(Tip(1, 4).startsWith("SAVE stores ")) << Tip(1, 4).toStdString();
  EXPECT_TRUE(Box(1, 4).text().contains('c'));
  TypeInto(1, 5, Box(1, 5).text().toLower());
  TypeInto(12, 5, "0" + Box(12, 5).text());
  EXPECT_EQ(Tip(1, 5) + Tip(12, 5), "") << "capitals and leading zeros make no difference";
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
  Box(3, 0).setFocus();
  EXPECT_NE(Seen(Find("Command1")), calm);
  PutFile(ImageFile(), Sample());
  Click("Command1");
  EXPECT_EQ(Tip(3, 0), "");
  EXPECT_EQ(Status(), "game.smc");
}

TEST_F(HonestMarksTest, F8GoesRoundTheCellsThatSaveWillNotKeep) {
  StartWithTeam();
  for (const int row : {0, 17}) TypeInto(2, row, "ZZ");
  TypeInto(2, 4, "QQ");
  Find("Command1").setFocus();
  const auto next = [this](Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Press(Qt::Key_F8, modifiers);
    return QApplication::focusWidget()->objectName();
  };
  EXPECT_EQ(next(), "Text2(0)");
  EXPECT_EQ(next(), "Text2(4)");
  EXPECT_EQ(next(), "Text2(17)");
  EXPECT_EQ(next(), "Text2(0)");
  EXPECT_EQ(next(Qt::ShiftModifier), "Text2(17)");
}

TEST_F(HonestMarksTest, UndoAndRedoWalkTypingPicksPastesAndImports) {
  StartWithTeam();
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += "I.MPORT,\r\n";
  PutFile(folder / "team.txt", lines);
  std::vector<std::vector<QString>> states = {GridTexts()};
  const auto note = [&] { states.push_back(GridTexts()); };
  TypeInto(3, 0, "24");
  note();
  Box(12, 5).setFocus();
  Click("Picture1(0)");
  note();
  PasteInto(1, 13, "A.ONE\t1B\nB.TWO\nC.BEYOND");
  EXPECT_EQ(Box(2, 13).text(), "1B");
  EXPECT_EQ(Box(1, 14).text(), "B.TWO");
  EXPECT_NE(Box(1, 15).text(), "C.BEYOND");
  note();
  Click("Command1");
  user.paths.push_back(PathOf("team.txt"));
  Choose("mnuImport");
  note();
  for (std::size_t place = states.size() - 1; place > 0; --place) {
    EXPECT_EQ(GridTexts(), states[place]);
    Press(Qt::Key_Z, Qt::ControlModifier);
  }
  EXPECT_EQ(QApplication::focusWidget(), &Box(3, 0));
  EXPECT_EQ(Box(3, 0).selectedText(), "21");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(GridTexts(), states[0]);
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  for (std::size_t place = 2; place < states.size(); ++place) {
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(GridTexts(), states[place]);
  }
  Click("Mets");
  const std::vector<QString> mets = GridTexts();
  Box(1, 0).setFocus();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(GridTexts(), mets) << "a load begins a new history, in the boxes too";
}

TEST_F(HonestMarksTest, EscapeGivesBackAndReturnGoesDown) {
  StartWithTeam();
  TypeInto(3, 0, "99");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Box(3, 0).text(), "21");
  EXPECT_EQ(Box(3, 0).selectedText(), "21");
  Press(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &Box(3, 1));
  Click("Mets");
  const QString number = Box(3, 1).text();
  Press(Qt::Key_Escape);
  EXPECT_EQ(Box(3, 1).text(), number) << "not the other team's";
}

TEST_F(HonestMarksTest, AnyClipboardIsPastedOrLeftAlone) {
  StartWithTeam();
  PasteInto(3, 0, "42\r\n");
  EXPECT_EQ(Box(3, 0).text(), "42");
  QString names;
  for (int row = 0; row < 15; ++row) names += QString("N.%1\n").arg(QChar('A' + row));
  PasteInto(1, 0, names);
  for (int row = 0; row < 15; ++row) EXPECT_EQ(Box(1, row).text(), names.section('\n', row, row));
  PasteInto(14, 24, QString::fromUtf8("ж\tx\ny"));
  EXPECT_EQ(Box(14, 24).text(), "?");
  PasteInto(2, 20, "");
  EXPECT_EQ(Box(2, 20).text(), "") << "nothing replaces what is selected, as ever";
  PasteInto(2, 20, QString(10000000, 'x'));
  EXPECT_EQ(Box(2, 20).text().size(), 32767);
  PasteInto(13, 20, QString(10000, '\n'));
  PasteInto(13, 20, QString(10000000, '\t'));
  PasteInto(13, 20, QString::fromLatin1("a\0b\t", 4));
  EXPECT_EQ(Box(14, 20).text(), "");
}

TEST_F(HonestMarksTest, ADroppedFileIsTakenAsIfItHadBeenChosen) {
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += "D.ROP,\r\n";
  PutFile(folder / "team.TXT", lines);
  MakeWindow();
  EXPECT_FALSE(DropFiles(*window, {ImagePath()})) << "no image has been asked for yet";
  StartWithTeam();
  EXPECT_TRUE(DropFiles(Box(1, 0), {PathOf("team.TXT")}));
  EXPECT_EQ(Box(1, 24).text(), "D.ROP");
  EXPECT_FALSE(DropFiles(*window, {PathOf(".")}));
  EXPECT_FALSE(DropFiles(*window, {ImagePath(), ImagePath()}));
  EXPECT_FALSE(DropFiles(*window, {ImagePath()}, Qt::MoveAction)) << "the file would be deleted";
  QMimeData address;
  address.setUrls({QUrl("https://example.org/game.smc")});
  EXPECT_FALSE(Drop(*window, address));
  EXPECT_TRUE(IsShown("Frame1"));
  EXPECT_TRUE(DropFiles(*window, {ImagePath()}, Qt::CopyAction | Qt::MoveAction));
  EXPECT_FALSE(IsShown("Frame1"));
  EXPECT_TRUE(DropFiles(*window, {PathOf("team.TXT")}));
  EXPECT_TRUE(user.messages.empty());
  EXPECT_EQ(Status(), "game.smc");
}

TEST_F(HonestMarksTest, TheWindowTellsWhereOneIs) {
  StartWithTeam();
  const auto state_of = [this](const QString& name) {
    return QAccessible::queryAccessibleInterface(&Find(name))->state();
  };
  // What an assistive tool presses does what a click does.
  QAccessibleInterface* cubs = QAccessible::queryAccessibleInterface(&Find("Cubs"));
  cubs->actionInterface()->doAction(cubs->actionInterface()->actionNames().constFirst());
  EXPECT_EQ(Find("Label4(0)").accessibleDescription(), "CHICAGO CUBS");
  EXPECT_TRUE(state_of("Cubs").checked);
  EXPECT_FALSE(state_of("Braves").checked);
  const QImage ringed = Seen(Find("Cubs"));

  Box(12, 3).setFocus();
  EXPECT_EQ(GroundOf(Seen(Box(1, 3))), QColor(0xff, 0xf5, 0xdb));
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&Find("Picture1(5)"));
  face->actionInterface()->doAction(face->actionInterface()->actionNames().constFirst());
  EXPECT_EQ(Box(12, 3).text(), "24");
  EXPECT_TRUE(state_of("Picture1(5)").checked);
  EXPECT_FALSE(state_of("Picture1(6)").checked);
  Box(2, 8).setFocus();
  EXPECT_EQ(GroundOf(Seen(Box(1, 8))), QColor(0xee, 0xf4, 0xff));
  Choose("mnuMini");
  EXPECT_EQ(GroundOf(Seen(Box(1, 3))), QColor(0xf7, 0xf9, 0xfc));
  Find("Command1").setFocus();
  EXPECT_EQ(GroundOf(Seen(Box(1, 8))), QColor(0xff, 0xff, 0xff));

  Click("Braves");
  EXPECT_NE(Seen(Find("Cubs")), ringed);
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(LabelText("Label4(0)"), "TORONTO BLUE JAYS");
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(LabelText("Label4(0)"), "ATLANTA BRAVES");
  QFile::remove(ImagePath());
  Click("Mets");
  EXPECT_FALSE(state_of("Mets").checked || state_of("Braves").checked) << "no team is shown";
  EXPECT_EQ(Find("labelHint").accessibleDescription(), LabelText("labelHint"));
  EXPECT_EQ(Find("Label3").accessibleDescription(), "3C");
}

}  // namespace
}  // namespace morlek

#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class StanceTest : public WindowTest {
 protected:
  /// Puts a code into the face box of a row, which then has the focus.
  void EnterFace(int row, const QString& code) {
    Box(1, row).setFocus();
    Box(12, row).setFocus();
    Box(12, row).setText(code);
  }

  /// The player put together, as he is seen below the faces and bodies, without the plate.
  [[nodiscard]] QImage Figure() const { return Seen(Find("StanceView")).copy(2, 3, 76, 97); }
};

TEST_F(StanceTest, APictureUnderThePointerIsTriedOnAndPutsNothing) {
  StartWithTeam();
  EnterFace(9, "20");
  Click("Picture1(36)");
  Press(Qt::Key_Z, Qt::ControlModifier);
  const std::vector<QString> texts = GridTexts();
  const EditorState before = editor->state();
  const QImage alone = Figure();
  const QImage tile = Seen(Find("Picture1(36)"));
  QTest::mouseMove(&Find("Picture1(36)"), QPoint(20, 20));
  const QImage tried = Figure();
  EXPECT_NE(Seen(Find("Picture1(36)")), tile);
  EXPECT_NE(tried, alone);
  EXPECT_EQ(GridTexts(), texts);
  EXPECT_EQ(editor->state().marks.modified_count(), before.marks.modified_count());
  EXPECT_TRUE(editor->state().can_redo) << "no step";

  QTest::mouseMove(&Find("Label4(0)"));
  EXPECT_EQ(Figure(), alone);
  QTest::mouseMove(&Find("Picture1(36)"), QPoint(20, 20));
  Press(Qt::Key_PageDown);
  EXPECT_NE(Figure(), tried) << "a pointer at rest does not hide what a key does";
  QTest::mouseMove(&Find("Picture1(36)"), QPoint(22, 22));
  EXPECT_EQ(Figure(), tried);
  Press(Qt::Key_Tab);
  QTest::mouseMove(&Find("Label4(0)"));
  EXPECT_NE(Figure(), tried) << "its chooser is gone";
}

TEST_F(StanceTest, PicturesOfTheOtherPiecesSkinHaveACheck) {
  StartWithTeam();
  EnterFace(9, "20");
  const auto checked = [this](const char* array) {
    QStringList codes;
    for (int index = 0; index < 48; ++index) {
      const QWidget& tile = Find(QString("%1(%2)").arg(array).arg(index));
      if (!tile.accessibleDescription().isEmpty()) codes << tile.accessibleName().section(' ', 1);
    }
    codes.sort();
    return codes.join(' ');
  };
  Box(13, 9).setText("37");
  EXPECT_EQ(checked("Picture1"), "20 21 22 23 24 25 26 27 30 31 32 33 34 35 36 37");
  const QImage fits = Seen(Find("Picture1(4)")).copy(37, 2, 12, 12);
  Box(13, 9).setText("40");
  EXPECT_EQ(checked("Picture1"), "40 41 42 43 44 45 46 47 50 51 52 53 54 55 56 57");
  EXPECT_NE(Seen(Find("Picture1(4)")).copy(37, 2, 12, 12), fits);
  EXPECT_EQ(checked("Picture2"), "20 21 22 23 24 25 26 27 30 31 32 33 34 35 36 37");
  const QImage legend = Seen(Find("Frame2")).copy(100, 5, 106, 16);
  Box(13, 9).setText("66");
  EXPECT_EQ(checked("Picture1"), "") << "a body without a picture";
  EXPECT_NE(Seen(Find("Frame2")).copy(100, 5, 106, 16), legend);
}

TEST_F(StanceTest, TheStanceShowsEachPieceOfItsRowInTheColorsOfTheTeam) {
  StartWithTeam();
  Box(12, 2).setFocus();
  const auto figure = [this](const QStringList& codes) {
    for (int column = 12; column <= 14; ++column) Box(column, 2).setText(codes[column - 12]);
    return Figure();
  };
  QImage empty = figure({"", "", ""});
  empty.fill(empty.pixel(0, 0));
  EXPECT_EQ(Figure(), empty);
  const QImage unknown = figure({"zz", "", ""});
  EXPECT_EQ(figure({"F0", "", ""}), unknown);
  EXPECT_NE(unknown, empty) << "seen to be so";
  EXPECT_EQ(figure({"FFFF0003", "", ""}), figure({"3", "", ""})) << "what SAVE makes of it";
  const QImage player = figure({"3", "57", "14"});
  for (const int column : {1, 2, 3}) {
    const QImage before = Seen(Find("StanceView"));
    Box(column, 3).setText("77");
    EXPECT_EQ(Seen(Find("StanceView")), before) << "another row";
    Box(column, 2).setText("77");
    EXPECT_NE(Seen(Find("StanceView")), before) << column;
  }
  Click("Orioles");
  EXPECT_NE(figure({"3", "57", "14"}), player);
  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_NE(Figure(), player) << "still that of the team in the title";
  PutFile(ImageFile(), Sample());
  Click("Braves");
  Box(12, 2).setFocus();
  EXPECT_EQ(figure({"3", "57", "14"}), player);
}

TEST_F(StanceTest, APickGoesToTheStanceRowAndMovesNothing) {
  StartWithTeam();
  // Before any visit it is the first row.
  Find("Frame3").show();
  Click("Picture2(47)");
  EXPECT_EQ(Box(13, 0).text(), "57");

  const QLineEdit& box = Box(12, 17);
  Box(12, 17).setFocus();
  Box(1, 9).setFocus();
  Box(1, 9).setSelection(1, 2);
  Click("Picture1(0)");
  EXPECT_EQ(box.text(), "0");
  EXPECT_EQ(Box(1, 9).selectionLength(), 2) << "another box keeps its selection";
  Choose("mnuMorlekHELP");
  Click("Picture1(12)");
  EXPECT_EQ(box.text(), "1") << "beside the help";
  CloseHelp();
  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_FALSE(IsShown("Frame1"));
  Click("Picture1(24)");
  EXPECT_EQ(box.text(), "2") << "in view also after a load that failed";
}

}  // namespace
}  // namespace morlek

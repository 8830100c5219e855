#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class LeafingTest : public WindowTest {
 protected:
  /// Puts a code into the face box of a row, which then has the focus.
  void EnterFace(int row, const QString& code) {
    Box(1, row).setFocus();
    Box(12, row).setFocus();
    Box(12, row).setText(code);
  }

  /// The player alone, without the plate.
  [[nodiscard]] QImage Figure() const { return Seen(Find("StanceView")).copy(2, 3, 76, 97); }
};

TEST_F(LeafingTest, APictureUnderThePointerIsTriedOnAndPutsNothing) {
  StartWithTeam();
  EnterFace(9, "20");
  Click("Picture1(36)");
  Press(Qt::Key_Z, Qt::ControlModifier);
  const std::vector<QString> texts = GridTexts();
  const EditorState before = editor->state();
  const QImage alone = Figure();
  QTest::mouseMove(&Find("Picture1(36)"), QPoint(20, 20));
  const QImage tried = Figure();
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

TEST_F(LeafingTest, PicturesOfTheOtherPiecesSkinHaveACheck) {
  StartWithTeam();
  EnterFace(9, "20");
  const auto checked = [this](const char* array) {
    QStringList codes;
    for (int index = 0; index < 48; index += 12) {
      for (int row = 0; row < 12; ++row) {
        const QWidget& tile = Find(QString("%1(%2)").arg(array).arg(index + row));
        if (!tile.accessibleDescription().isEmpty()) codes << tile.accessibleName().section(' ', 1);
      }
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
  Box(13, 9).setText("66");
  EXPECT_EQ(checked("Picture1"), "") << "a body without a picture";
}

}  // namespace
}  // namespace morlek

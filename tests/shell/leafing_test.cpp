#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class LeafingTest : public WindowTest {
 protected:
  /// Puts a code into the face box of a row, which then has the focus.
  QLineEdit& EnterFace(int row, const QString& code) {
    Box(1, row).setFocus();
    Box(12, row).setFocus();
    Box(12, row).setText(code);
    return Box(12, row);
  }

  /// The player alone, without the plate.
  [[nodiscard]] QImage Figure() const { return Seen(Find("StanceView")).copy(2, 3, 76, 97); }
};

TEST_F(LeafingTest, PageKeysGoThroughThePicturesInTheOrderOfTheirCodes) {
  StartWithTeam();
  QLineEdit& face = EnterFace(4, "0");
  QStringList codes = {face.text()};
  for (; codes.size() < 48; codes << face.text()) Press(Qt::Key_PageDown);
  EXPECT_EQ(codes.mid(0, 10).join(' '), "0 1 2 3 4 5 6 7 10 11");
  Press(Qt::Key_PageDown);
  EXPECT_EQ(face.text(), "57") << "there is no next one";
  EXPECT_EQ(face.selectedText(), "57") << "typing replaces it";
  for (int place = 46; place >= 0; --place) {
    Press(Qt::Key_PageUp);
    EXPECT_EQ(face.text(), codes[place]);
  }
  Press(Qt::Key_PageUp);
  EXPECT_EQ(face.text(), "0");

  struct Case {
    const char* from;
    const char* down;
    const char* up;
  };
  for (const auto& [from, down, up] : {Case{"18", "20", "17"},
                                       {"FF", "FF", "57"},
                                       {"07", "10", "6"},
                                       {"zz", "0", "57"},
                                       {"", "0", "57"}}) {
    EnterFace(4, from);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(face.text(), down) << from;
    EnterFace(4, from);
    Press(Qt::Key_PageUp);
    EXPECT_EQ(face.text(), up) << from;
  }
  Box(14, 4).setFocus();
  Box(14, 4).setText("4");
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Box(14, 4).text(), "10") << "legs have pictures of their own";
  Box(3, 4).setFocus();
  const std::vector<QString> before = GridTexts();
  Press(Qt::Key_PageDown);
  EXPECT_EQ(GridTexts(), before);
}

TEST_F(LeafingTest, TheFigureFollowsAndOneVisitIsTakenBackInOneStep) {
  StartWithTeam();
  QLineEdit& face = EnterFace(9, "20");
  const QImage first = Figure();
  Choose("mnuMini");
  for (int pictures = 0; pictures < 3; ++pictures) Press(Qt::Key_PageDown);
  EXPECT_EQ(face.text(), "23");
  EXPECT_EQ(window->width(), 666) << "the choosers come back into view";
  EXPECT_NE(Figure(), first);
  EXPECT_TRUE(ChangedPositions().empty());

  QTest::keyClicks(&face, "5");
  Press(Qt::Key_PageUp);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(face.text(), "3");
  for (const char* text : {"5", "23", "20"}) {
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(face.text(), text);
  }
  EXPECT_EQ(Figure(), first);
}

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

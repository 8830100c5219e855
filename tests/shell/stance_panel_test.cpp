#include <QAbstractButton>
#include <QPlainTextEdit>

#include "shell/eye.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class StancePanelTest : public WindowTest {
 protected:
  static QString Picture(int array, int index) {
    return QString("Picture%1(%2)").arg(array).arg(index);
  }
};

TEST_F(StancePanelTest, PickingMovesNothingAndSavesOnlyWithSave) {
  StartWithTeam();
  Box(12, 17).setFocus();
  Click(Picture(1, 36));
  EXPECT_EQ(QApplication::focusWidget(), &Box(12, 17));
  EXPECT_TRUE(IsShown("Frame2"));
  EXPECT_TRUE(ChangedPositions().empty());
  Click("Command1");
  EXPECT_EQ(GetFile(ImageFile()).at(kBraves - 1 + 32 * 17 + 14), 0x03);
}

TEST_F(StancePanelTest, TypingAfterAPickReplacesIt) {
  StartWithTeam();
  QLineEdit& box = Box(12, 17);
  box.setFocus();
  for (int picks = 0; picks < 2; ++picks) {
    box.deselect();
    Click(Picture(1, 36));
    EXPECT_EQ(box.selectedText(), "3") << "also where the text stays the same";
  }
  QTest::keyClicks(&box, "5");
  EXPECT_EQ(box.text(), "5");

  Box(1, 9).setFocus();
  Box(1, 9).setSelection(1, 2);
  Click(Picture(1, 0));
  EXPECT_EQ(Box(1, 9).selectionLength(), 2) << "another box keeps its selection";
}

TEST_F(StancePanelTest, PicturesCannotBePickedWhileTheGridIsHiddenOrCovered) {
  StartWithTeam();
  Box(12, 0).setFocus();
  const auto pick = [this](int index) {
    Find<QAbstractButton>(Picture(1, index)).click();
    return Box(12, 0).text();
  };
  ASSERT_EQ(pick(36), "3");
  Choose("mnuMorlekHELP");
  EXPECT_EQ(pick(12), "3") << "under the help";
  DoubleClick(*Find<QPlainTextEdit>("Text15").viewport());
  EXPECT_EQ(pick(12), "1");

  std::filesystem::remove(ImageFile());
  Click("Braves");
  EXPECT_EQ(pick(36), "1") << "after a failed load";
  PutFile(ImageFile(), Sample());
  Click("Braves");
  EXPECT_EQ(pick(36), "3");
  user.paths.emplace_back(ImagePath());
  Choose("mnuOpen");
  EXPECT_EQ(pick(12), "3") << "after another image";
}

TEST_F(StancePanelTest, ThreeColumnsShareTheStanceRow) {
  StartWithTeam();
  // Before any visit it is the first row.
  Find("Frame3").show();
  QTest::mouseClick(&Find(Picture(2, 47)), Qt::LeftButton);
  EXPECT_EQ(Box(13, 0).text(), "57");

  Box(12, 4).setFocus();
  Box(1, 9).setFocus();
  Find("Frame3").show();
  Click(Picture(2, 11));
  EXPECT_EQ(Box(13, 4).text(), "54");
}

TEST_F(StancePanelTest, ACodeIsWhatSaveMakesOfTheTextHoweverLongItIs) {
  StartWithTeam();
  TypeInto(12, 2, "3");
  const QImage marked = Seen(Find(Picture(1, 36)));
  const QImage with_face = Seen(Find("StanceView"));
  TypeInto(12, 2, "FFFF0003");
  EXPECT_EQ(Seen(Find(Picture(1, 36))), marked);
  EXPECT_EQ(Seen(Find("StanceView")), with_face);

  // A code without a picture, and what is no code, show as unknown; an empty box does not.
  TypeInto(12, 2, "F0");
  const QImage unknown_face = Seen(Find("StanceView"));
  TypeInto(12, 2, "zz");
  EXPECT_EQ(Seen(Find("StanceView")), unknown_face);
  QTest::keyClick(&Box(12, 2), Qt::Key_Backspace);
  QTest::keyClick(&Box(12, 2), Qt::Key_Backspace);
  EXPECT_NE(Seen(Find("StanceView")), unknown_face);
}

}  // namespace
}  // namespace morlek

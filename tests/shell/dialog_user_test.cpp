#include "shell/dialog_user.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QTreeView>

#include "shell/window_fixture.h"

namespace morlek {
namespace {

/// The real dialogs, each answered from the event loop that it runs.
class DialogUserTest : public ::testing::Test {
 protected:
  /// Does something with the next modal dialog once it is up.
  template <typename Dialog, typename Answer>
  static void AnswerNext(Answer answer) {
    QTimer::singleShot(0, [answer] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }

  static void TypeNameAndAccept(QDialog& dialog, const QString& name) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
    dialog.accept();
  }

  DialogUser user;
  TempDir folder;
};

TEST_F(DialogUserTest, OpenDialogGivesThePathAndLaterOnesForItsKindStartInItsFolder) {
  PutFile(folder / "game.smc", std::string("x"));
  const QString path = PathText(folder / "game.smc");
  AnswerNext<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Some title");
    EXPECT_EQ(dialog.nameFilters(), QStringList("SNES File (*.smc)"));
    EXPECT_EQ(dialog.objectName(), "CommonDialog1");
    TypeNameAndAccept(dialog, path);
  });
  EXPECT_EQ(user.AskOpenPath({"Some title", "SNES File (*.smc)|*.smc"}), path);

  std::filesystem::create_directory(folder / "teams");
  const QString team = PathText(folder / "teams" / "team.txt");
  AnswerNext<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), QFileInfo(path).absolutePath());
    TypeNameAndAccept(dialog, team);
  });
  EXPECT_EQ(user.AskSavePath({"A team", "Morlek Team Data File (*.txt)|*.txt"}), team);

  AnswerNext<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), QFileInfo(path).absolutePath());
    dialog.reject();
  });
  EXPECT_EQ(user.AskOpenPath({"Another", "SNES File (*.smc)|*.smc"}), std::nullopt);

  const QSettings kept(QSettings::UserScope, "QtProject");
  EXPECT_FALSE(QFileInfo::exists(kept.fileName()) || !kept.allKeys().isEmpty())
      << "the program keeps nothing between runs";
}

TEST_F(DialogUserTest, SaveDialogReplacesWithoutAskingAndAddsNoExtension) {
  PutFile(folder / "team", std::string("old"));
  const QString path = PathText(folder / "team");
  AnswerNext<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.labelText(QFileDialog::LookIn), "Save in:");
    const auto& files = *dialog.findChild<QTreeView*>("treeView");
    const QHeaderView& heads = *files.header();
    EXPECT_FALSE(heads.stretchLastSection());
    EXPECT_EQ(heads.length(), files.viewport()->width());
    for (const int cut : {1, 2, 3}) EXPECT_EQ(heads.sectionSize(cut), heads.sectionSizeHint(cut));
    TypeNameAndAccept(dialog, path);
  });
  EXPECT_EQ(user.AskSavePath({"Save", "Morlek Team Data File (*.txt)|*.txt"}), path);
}

TEST_F(DialogUserTest, QuestionHasNoAsDefaultAndMessageIsPlainText) {
  for (const bool yes : {true, false}) {
    AnswerNext<QMessageBox>([yes](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Title");
      EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
      EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
      if (yes) return box.button(QMessageBox::Yes)->click();
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_EQ(user.AskYesNo("Sure?\n\nIf not then click NO.", "Title"), yes);
  }
  AnswerNext<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    box.accept();
  });
  user.ShowMessage("<b>12G</b>", "Title", Message::Icon::kCritical);
}

}  // namespace
}  // namespace morlek

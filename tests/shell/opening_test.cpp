#include <QAbstractButton>
#include <QMenuBar>

#include "shell/splash_window.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr char kMustOpen[] = "You must first open a Dale Harrow Baseball SNES rom.";
constexpr char kNotThisGame[] = "This is not a Dale Harrow Baseball SNES rom.";
constexpr char kImageTitle[] = "Morlek Editor";

class OpeningTest : public WindowTest {
 protected:
  /// A file like the image but for its identity byte.
  QString WrongImage(std::uint8_t identity) {
    std::vector<std::uint8_t> bytes = Sample();
    bytes.at(988296) = identity;
    PutFile(folder / "wrong.smc", bytes);
    return PathOf("wrong.smc");
  }

  void OpenLater(const std::optional<QString>& answer) {
    user.paths.push_back(answer);
    Choose("mnuOpen");
  }
};

TEST(SplashTest, StaysUntilAKeyOrAClickOnThePicture) {
  SplashWindow splash;
  int dismissed = 0;
  QObject::connect(&splash, &SplashWindow::Dismissed, [&] { ++dismissed; });
  splash.show();
  EXPECT_EQ(splash.windowTitle(), "Form2");
  QTest::keyClick(&splash, Qt::Key_Space);
  EXPECT_EQ(dismissed, 1);
  QTest::mouseClick(splash.findChild<QAbstractButton*>(), Qt::LeftButton);
  EXPECT_EQ(dismissed, 2);
}

TEST_F(OpeningTest, AsksForAnImageAsTheWindowFirstAppears) {
  Start(ImagePath());
  ASSERT_EQ(user.open_questions.size(), 1U);
  EXPECT_EQ(user.open_questions[0].title, "Open Dale Harrow Jr. Baseball Rom");
  EXPECT_EQ(user.open_questions[0].filter, "SNES File (*.smc)|*.smc");
  EXPECT_TRUE(user.messages.empty());
  EXPECT_EQ(LabelText("Label3"), "3C");
  EXPECT_TRUE(IsShown("Toolbar1"));
  EXPECT_FALSE(IsShown("Frame1"));

  window->hide();
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  QTest::qWait(50);
  EXPECT_EQ(user.open_questions.size(), 1U) << "asked again when shown again";
}

TEST_F(OpeningTest, NoCommandIsTakenBeforeTheFirstImageHasBeenAskedFor) {
  user.paths = {ImagePath()};
  MakeWindow();
  Choose("mnuOpen");
  Choose("mnuAboutMorlek");
  EXPECT_TRUE(user.open_questions.empty());
  EXPECT_TRUE(user.messages.empty());
  // A system that shows the menus elsewhere leaves no strip of the window itself to be painted.
  window->menuBar()->hide();
  window->show();
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsShown("Toolbar1"); }));
}

TEST_F(OpeningTest, FirstFileThatIsNoImageIsRefusedAndALaterOneIsTaken) {
  const std::vector<std::optional<QString>> first_answers = {std::nullopt, PathOf("missing.smc"),
                                                             PathOf("."), WrongImage(0)};
  for (const auto& answer : first_answers) {
    user.open_questions.clear();
    Start(answer);
    ExpectTold(kMustOpen, kImageTitle);
    EXPECT_EQ(LabelText("Label3"), "0");
    EXPECT_FALSE(IsShown("Toolbar1"));
  }
  // The grid can be imported into before there is an image.
  std::string lines;
  for (int row = 0; row < 25; ++row) lines += "T.EAM,\r\n";
  PutFile(folder / "team.txt", lines);
  user.paths.push_back(PathOf("team.txt"));
  Choose("mnuImport");
  OpenLater(ImagePath());
  EXPECT_TRUE(IsShown("Toolbar1"));
  EXPECT_EQ(Box(1, 0).text(), "T.EAM");
  EXPECT_TRUE(user.messages.empty());
  Click("Braves");
  EXPECT_TRUE(IsShown("Frame1"));
}

TEST_F(OpeningTest, LaterRefusalKeepsEverythingButTheIdentityByte) {
  StartWithTeam();
  const std::vector<QString> texts = GridTexts();

  OpenLater(WrongImage(0xC3));
  ExpectTold(kNotThisGame, kImageTitle);
  EXPECT_EQ(LabelText("Label3"), "C3");

  EXPECT_EQ(GridTexts(), texts);
  EXPECT_TRUE(IsShown("Toolbar1"));
  EXPECT_TRUE(IsShown("Frame1"));
  // The image is still the first one.
  TypeInto(3, 0, "24");
  Click("Command1");
  EXPECT_EQ(ChangedPositions(), std::vector<std::size_t>{kBraves + 10});
}

TEST_F(OpeningTest, CancelAndUnopenableFileLaterAreSilent) {
  StartWithTeam();
  const std::vector<std::optional<QString>> answers = {std::nullopt, PathOf("missing.smc"),
                                                       PathOf(".")};
  for (const auto& answer : answers) {
    OpenLater(answer);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(LabelText("Label3"), "3C");
    EXPECT_TRUE(IsShown("Frame1"));
  }
}

TEST_F(OpeningTest, AnotherImageHidesTheGridAndKeepsItsTexts) {
  StartWithTeam();
  Box(12, 3).setFocus();
  const std::vector<QString> texts = GridTexts();
  OpenLater(ImagePath());
  EXPECT_FALSE(IsShown("Frame1"));
  EXPECT_EQ(window->width(), 447);
  EXPECT_EQ(GridTexts(), texts);
}

TEST_F(OpeningTest, TeamThatCannotBeLoadedIsReportedAndTheGridHidden) {
  StartWithTeam();
  std::filesystem::remove(ImageFile());
  Click("Mets");
  ASSERT_EQ(user.messages.size(), 1U);
  EXPECT_EQ(user.messages[0].title, "MORLEK EDITOR");
  EXPECT_EQ(user.messages[0].icon, Message::Icon::kCritical);
  EXPECT_EQ(LabelText("Label4(0)"), "ATLANTA BRAVES");
  EXPECT_FALSE(IsShown("Frame1"));

  PutFile(ImageFile(), Sample());
  Click("Mets");
  EXPECT_TRUE(IsShown("Frame1"));
  EXPECT_EQ(LabelText("Label4(0)"), "NEW YORK METS");
}

TEST_F(OpeningTest, KeysDoNotReachTheHiddenGrid) {
  StartWithTeam();
  Find("Command1").setFocus();
  OpenLater(ImagePath());
  QTest::keyClick(window.get(), Qt::Key_Space);
  Find<QAbstractButton>("Command1").click();
  EXPECT_TRUE(user.messages.empty()) << "saved into an image of which no team is loaded";
  EXPECT_EQ(window->focusWidget(), nullptr);

  Click("Braves");
  QTest::mouseClick(&Box(1, 0), Qt::LeftButton);
  const QString name = Box(1, 0).text();
  std::filesystem::remove(ImageFile());
  Click("Mets");
  user.messages.clear();
  QTest::keyClicks(window.get(), "X");
  EXPECT_EQ(Box(1, 0).text(), name);
}

TEST_F(OpeningTest, SaveAfterAnEditSaysSo) {
  StartWithTeam();
  EXPECT_EQ(Box(3, 0).text(), "21");
  TypeInto(3, 0, "24");
  Click("Command1");
  ExpectTold("Your changes have been saved.");
  EXPECT_EQ(ChangedPositions(), std::vector<std::size_t>{kBraves + 10});

  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  ExpectTold("Your changes have been saved.");
}

}  // namespace
}  // namespace morlek

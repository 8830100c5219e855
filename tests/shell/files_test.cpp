#include <QAbstractButton>
#include <QDir>
#include <QMenuBar>

#include "shell/code_page_text.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

constexpr char kTeamDataFilter[] = "Morlek Team Data File (*.txt)|*.txt";

/// What is opened, saved, exported and imported.
using FilesTest = WindowTest;

TEST_F(FilesTest, TheFirstImageIsAskedForOnceAndBeforeAnyCommand) {
  MakeWindow();
  Choose("mnuOpen");
  Choose("mnuAboutMorlek");
  EXPECT_TRUE(user.open_questions.empty());
  // A system that shows the menus elsewhere leaves no strip of the window itself to be painted.
  window->menuBar()->hide();
  user.paths = {ImagePath()};
  window->show();
  ASSERT_TRUE(QTest::qWaitFor([this] { return IsShown("Toolbar1"); }));
  EXPECT_EQ(user.open_questions[0].title, "Open Dale Harrow Jr. Baseball Rom");
  EXPECT_EQ(user.open_questions[0].filter, "SNES File (*.smc)|*.smc");
  EXPECT_TRUE(user.messages.empty());

  window->hide();
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  QTest::qWait(50);
  EXPECT_EQ(user.open_questions.size(), 1U) << "asked again when shown again";
}

TEST_F(FilesTest, WithoutAFirstImageALaterOneIsTaken) {
  Start(std::nullopt);
  EXPECT_EQ(user.messages.at(0).text, "You must first open a Dale Harrow Baseball SNES rom.");
  EXPECT_EQ(user.messages[0].title, "Morlek Editor");
  // The grid can be imported into before there is an image.
  ChooseWith("mnuImport", TeamFile("T.EAM"));
  ChooseWith("mnuOpen", ImagePath());
  EXPECT_EQ(Box(1, 0).text(), "T.EAM");
  EXPECT_EQ(user.messages.size(), 1U);
}

TEST_F(FilesTest, TeamThatCannotBeLoadedIsReportedAndKeysDoNotReachTheHiddenGrid) {
  StartWithTeam();
  std::filesystem::remove(ImageFile());
  Click("Mets");
  ASSERT_EQ(user.messages.size(), 1U);
  EXPECT_EQ(user.messages[0].title, "MORLEK EDITOR");
  EXPECT_EQ(user.messages[0].icon, Message::Icon::kCritical);

  PutFile(ImageFile(), Sample());
  Click("Mets");
  // No key reaches the hidden grid when the help, which has covered it, gives the focus back.
  Find("Command1").setFocus();
  Choose("mnuMorlekHELP");
  ChooseWith("mnuOpen", ImagePath());
  CloseHelp();
  EXPECT_FALSE(IsShown("Frame1") || IsShown("Frame5"));
  user.messages.clear();
  for (const auto key : {Qt::Key_Space, Qt::Key_Down}) QTest::keyClick(window.get(), key);
  Find<QAbstractButton>("Command1").click();
  EXPECT_TRUE(user.messages.empty()) << "saved into an image of which no team is loaded";
  EXPECT_EQ(window->focusWidget(), nullptr);
}

TEST_F(FilesTest, EveryCharacterThatABoxCanHoldComesBackFromATeamFile) {
  StartWithTeam();
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == ',' || byte == '\r') continue;
    const QString text = FromCodePage(std::string(1, static_cast<char>(byte)));
    Box(1 + byte % 14, byte / 14).setText("a" + text + "b" + text);
  }
  const std::vector<QString> before = GridTexts();
  ChooseWith("mnuExport", PathOf("team"));
  EXPECT_EQ(user.save_questions.at(0).title, "Save Dale Harrow Jr. Baseball Team Data");
  EXPECT_EQ(user.save_questions[0].filter, kTeamDataFilter);
  EXPECT_EQ(user.messages.at(0).text,
            "Your team data has been saved to " + QDir::toNativeSeparators(PathOf("team")));
  EXPECT_EQ(user.messages[0].icon, Message::Icon::kNone);

  Click("Mets");
  EXPECT_NE(GridTexts(), before);
  ChooseWith("mnuImport", PathOf("team"));
  EXPECT_EQ(user.open_questions.at(1).title, "Open Dale Harrow Jr. Baseball Team Data");
  EXPECT_EQ(user.open_questions[1].filter, kTeamDataFilter);
  EXPECT_EQ(user.messages.size(), 1U);
  EXPECT_EQ(GridTexts(), before);
}

TEST_F(FilesTest, WhatCannotBeOpenedIsSilentAndACancelFreesAShortFile) {
  StartWithTeam();
  const std::vector<QString> before = GridTexts();
  for (const auto& answer : {PathOf("missing"), PathOf(".")}) {
    ChooseWith("mnuImport", answer);
    ChooseWith("mnuOpen", answer);
  }
  ChooseWith("mnuExport", PathOf("no folder/team.txt"));
  EXPECT_EQ(GridTexts(), before);
  PutFile(folder / "short.txt", std::string("A.B,P,\r\n"));
  for (const char* cancelled : {"mnuOpen", "mnuImport", "mnuExport"}) {
    ChooseWith("mnuImport", PathOf("short.txt"));
    EXPECT_EQ(Box(1, 0).text(), "A.B");
    ChooseWith(cancelled, std::nullopt);
    EXPECT_TRUE(LabelText("labelStatus").contains("1 of 25 lines read, Ctrl+Z goes back"));
    Click("Braves");
    EXPECT_TRUE(user.messages.empty()) << cancelled;
  }
}

}  // namespace
}  // namespace morlek

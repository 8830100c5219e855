#include "shell/code_page_text.h"
#include "shell/window_fixture.h"

namespace morlek {
namespace {

class TeamDataTest : public WindowTest {
 protected:
  void Export(const std::optional<QString>& answer) {
    user.paths.push_back(answer);
    Choose("mnuExport");
  }
  void Import(const std::optional<QString>& answer) {
    user.paths.push_back(answer);
    Choose("mnuImport");
  }
};

TEST_F(TeamDataTest, ExportAndImportAskAndTell) {
  StartWithTeam();
  user.open_questions.clear();
  Export(PathOf("team"));
  ASSERT_EQ(user.save_questions.size(), 1U);
  EXPECT_EQ(user.save_questions[0].title, "Save Dale Harrow Jr. Baseball Team Data");
  EXPECT_EQ(user.save_questions[0].filter, "Morlek Team Data File (*.txt)|*.txt");
  ExpectTold("Your team data has been saved to " + PathOf("team"));

  Import(PathOf("team"));
  ASSERT_EQ(user.open_questions.size(), 1U);
  EXPECT_EQ(user.open_questions[0].title, "Open Dale Harrow Jr. Baseball Team Data");
  EXPECT_EQ(user.open_questions[0].filter, "Morlek Team Data File (*.txt)|*.txt");
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(TeamDataTest, EveryCharacterThatABoxCanHoldComesBack) {
  StartWithTeam();
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == ',' || byte == '\r') continue;
    const QString text = FromCodePage(std::string(1, static_cast<char>(byte)));
    Box(1 + byte % 14, byte / 14).setText("a" + text + "b" + text);
  }
  const std::vector<QString> before = GridTexts();
  Export(PathOf("team.txt"));
  Click("Mets");
  EXPECT_NE(GridTexts(), before);
  Import(PathOf("team.txt"));
  EXPECT_EQ(GridTexts(), before);
}

TEST_F(TeamDataTest, CancelsAndFailuresAreSilent) {
  StartWithTeam();
  user.messages.clear();
  const std::vector<QString> before = GridTexts();
  PutFile(folder / "old.txt", std::string("old"));
  Export(std::nullopt);
  Import(std::nullopt);
  Import(PathOf("missing.txt"));
  Import(PathOf("."));
  Export(PathOf("no folder/team.txt"));
  EXPECT_TRUE(user.messages.empty());
  EXPECT_EQ(GridTexts(), before);
  EXPECT_EQ(GetFile(folder / "old.txt"), "old");
}

TEST_F(TeamDataTest, ShortFileHoldsTheChannelUntilASaveOrACancelFreesIt) {
  StartWithTeam();
  PutFile(folder / "short.txt", std::string("A.B,P,\r\n"));
  const auto import_fails = [this] {
    Import(PathOf("short.txt"));
    EXPECT_EQ(Box(1, 0).text(), "A.B");
    EXPECT_EQ(Box(2, 1).text(), "");
  };
  import_fails();

  // While it is held nothing else is opened: no file is made, no grid emptied, no image changed.
  Export(PathOf("new.txt"));
  EXPECT_FALSE(std::filesystem::exists(folder / "new.txt"));
  Import(PathOf("missing.txt"));
  EXPECT_EQ(Box(1, 0).text(), "A.B");
  EXPECT_TRUE(user.messages.empty());
  Click("Command1");
  // 24 empty names are no letters that the codec knows; then the save says that it is done.
  ASSERT_EQ(user.messages.size(), 25U);
  EXPECT_EQ(user.messages.back().text, "Your changes have been saved.");
  EXPECT_TRUE(ChangedPositions().empty());
  user.messages.clear();

  // The save has freed it.
  Export(PathOf("new.txt"));
  EXPECT_TRUE(std::filesystem::exists(folder / "new.txt"));
  user.messages.clear();

  for (const char* cancelled : {"mnuOpen", "mnuImport", "mnuExport"}) {
    import_fails();
    Choose(cancelled);
    Click("Braves");
    EXPECT_TRUE(user.messages.empty()) << cancelled << " frees it too";
    EXPECT_EQ(Box(3, 0).text(), "21");
  }

  import_fails();
  Click("Braves");
  ASSERT_EQ(user.messages.size(), 1U) << "and so does a load that fails";
  EXPECT_EQ(user.messages[0].icon, Message::Icon::kCritical);
  EXPECT_FALSE(IsShown("Frame1"));
  Click("Braves");
  EXPECT_TRUE(IsShown("Frame1"));
}

}  // namespace
}  // namespace morlek

#include "team/save_preview.h"

#include "editor/editor.h"
#include "image/team_directory.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

using enum Column;

/// A whole editor over the image in memory.
class SavePreviewTest : public TeamTest {
 protected:
  SavePreviewTest() {
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
  }

  void TypeInto(const CellText& text) { editor.Type(text.cell(), text.text); }

  Editor editor{messages, disk.Opener()};
};

TEST_F(SavePreviewTest, EveryTeamOfTheSampleIsKeptAsShownAndSavedAsItWas) {
  const std::vector<std::uint8_t> before = file() = MakeSampleImage();
  for (const Team& team : kTeamDirectory) {
    editor.LoadTeam(team.key);
    EXPECT_EQ(editor.Preview().after(), editor.state().grid) << team.key;
    editor.Save();
    ASSERT_TRUE(file() == before) << team.key;
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{kSaved}) << team.key;
    messages.shown.clear();
  }
}

TEST_F(SavePreviewTest, ACloseThatFailsLeavesTheMarks) {
  TypeInto({0, 3, "77"});
  EXPECT_EQ(editor.state().marks.modified_count(), 1);
  disk.failing_access = 1000000;
  editor.Save();
  const int accesses = 1000000 - disk.failing_access;
  TypeInto({0, 3, "78"});
  disk.failing_access = accesses;  // the close
  editor.Save();
  EXPECT_EQ(disk.failed_closes, 1);
  EXPECT_EQ(editor.state().marks.modified_count(), 1);
}

TEST_F(SavePreviewTest, WhatTheDiskRefusesIsNotKnownToBeThere) {
  const Cell number{kUniformNumber, 0};
  const auto known = [&] { return editor.baseline()->texts().Text(number); };
  TypeInto({0, 3, "77"});
  const std::vector<std::uint8_t> content = file();
  disk.files.clear();
  editor.Save();
  EXPECT_EQ(known(), "1");
  disk.files[kImage] = content;
  editor.Save();
  EXPECT_EQ(known(), "77");
  EXPECT_EQ(editor.Preview().after(), editor.state().grid);
}

}  // namespace
}  // namespace morlek

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "image/team_directory.h"
#include "support/editor_fixture.h"
#include "support/temp_dir.h"

namespace morlek {
namespace {

TEST(RoundTrip, LoadingAndSavingEveryTeamLeavesTheFileAsItWas) {
  const TempDir dir;
  const std::filesystem::path path = dir / "game.smc";
  PutFile(path, MakeSampleImage());
  const std::string before = GetFile(path);
  RecordingMessages messages;
  RecordingView view;
  Editor editor(messages);
  ASSERT_EQ(editor.OpenFirstImage(path), Editor::Opening::kAccepted);
  for (const Team& team : kTeamDirectory) {
    editor.loader.Load(team.key, view);
    editor.saver.Save();
    ASSERT_EQ(GetFile(path), before) << team.key;
    ASSERT_EQ(messages.Texts(), std::vector<std::string>{kSaved}) << team.key;
    messages.shown.clear();
  }
  editor.loader.Load("Braves", view);
  editor.grid.SetText(Column::kText3, 0, "24");
  editor.saver.Save();
  std::string after = before;
  after.at(1278465 + 10 - 1) = 0x18;
  EXPECT_EQ(GetFile(path), after);
}

class RoundTripTest : public EditorTest {
 protected:
  /// The bytes of the record that differ from `before`. No byte around it may differ.
  std::vector<FieldByte> ChangesSince(const std::vector<std::uint8_t>& before) {
    std::vector<FieldByte> changes;
    std::vector<std::uint8_t> others = image();
    for (int place = 0; place < 800; ++place) {
      const auto index = static_cast<std::size_t>(kBraves - 1 + place);
      if (others.at(index) == before.at(index)) continue;
      changes.push_back({place / 32, place % 32, others.at(index)});
      others.at(index) = before.at(index);
    }
    EXPECT_TRUE(others == before) << "a byte outside the record has changed";
    return changes;
  }
};

struct Edit {
  Cell cell;
  std::vector<FieldByte> changes;
};

// clang-format off
const std::vector<Edit> kEdits = {
    {{7, 1, "H.BX"}, {{7, 2, 0x22}}}, {{7, 2, "SS"}, {{7, 9, 0x0C}}}, {{7, 3, "99"}, {{7, 10, 99}}},
    {{7, 4, "S"}, {{7, 13, 0x20}}}, {{7, 5, "3"}, {{7, 11, 0x27}}}, {{7, 6, "2"}, {{7, 11, 0x71}}},
    {{7, 7, "5"}, {{7, 12, 0x48}}}, {{7, 8, "3"}, {{7, 12, 0x02}}},
    {{7, 9, ".100"}, {{7, 24, 0x64}, {7, 25, 0x30}}}, {{7, 10, "0"}, {{7, 26, 0x00}}},
    {{7, 11, "200"}, {{7, 28, 0xC8}}}, {{7, 12, "50"}, {{7, 14, 0x50}}},
    {{7, 13, "5"}, {{7, 15, 0x05}}}, {{7, 14, "14"}, {{7, 16, 0x14}}},
    {{20, 1, "K.OX"}, {{20, 0, 0x15}, {20, 1, 0x19}, {20, 2, 0x22}}}, {{20, 2, "P"}, {{20, 9, 0}}},
    {{20, 3, "0"}, {{20, 10, 0x00}}},
    {{20, 4, "LS<"}, {{20, 17, 0x01}, {20, 21, 0x13}, {20, 23, 0x21}}},
    {{20, 5, "10"}, {{20, 11, 0x92}}}, {{20, 6, "9"}, {{20, 11, 0x08}}},
    {{20, 7, "13"}, {{20, 12, 0x12}}}, {{20, 8, "5"}, {{20, 24, 0x05}}},
    {{20, 9, "4.50"}, {{20, 28, 0xC2}, {20, 29, 0x21}}}, {{20, 10, "12"}, {{20, 26, 0x0C}}},
    {{20, 11, "0"}, {{20, 30, 0x00}}}, {{20, 12, "7"}, {{20, 14, 0x07}, {20, 21, 0x00}}},
    {{20, 13, "0"}, {{20, 15, 0x00}}}, {{20, 14, "3"}, {{20, 16, 0x03}}},
    {{7, 5, ""}, {}}, {{7, 7, ""}, {}},
    {{7, 9, ""}, {}}, {{20, 12, ""}, {}}, {{20, 4, ""}, {{20, 21, 0x13}}}};

const std::vector<FieldByte> kStored = {
    {0, 0, 0x00}, {0, 1, 0x1D}, {0, 2, 0x17},          // no initial: the name closes up
    {1, 0, 0x36}, {1, 1, 0x0A},                        // a small c, a blank inside
    {2, 11, 0x09}, {3, 12, 0x09}, {2, 10, 0xFF},       // ratings of 10, a large number
    {14, 24, 0x00}, {14, 25, 0x00},                    // no average at all
    {15, 23, 0x02}, {16, 23, 0x12}, {17, 23, 0x22},    // other ways to store an S
    {18, 21, 0x0F}, {19, 21, 0xF0}, {20, 17, 0x77}};   // digits of the game's own
const std::vector<FieldByte> kBack = {
    {0, 0, 0x1D}, {0, 1, 0x17}, {0, 2, 0x00}, {1, 0, 0x0D}, {1, 1, 0x0C}, {1, 2, 0x00},
    {2, 10, 0x02}, {2, 11, 0x99}, {3, 12, 0x99}, {14, 24, 0x07}, {14, 25, 0x31}, {15, 23, 0x01},
    {16, 17, 0x01}, {16, 23, 0x11}, {17, 23, 0x21}, {18, 21, 0x03}, {19, 21, 0x13}, {20, 17, 0x00}};
// clang-format on

TEST_F(RoundTripTest, EditsOfOneCellChangeItsBytesAlone) {
  Load("Braves");
  const auto before = image();
  for (const auto& [cell, changes] : kEdits) {
    const std::string text = Text(cell.column, cell.row);
    Type({cell});
    Save();
    EXPECT_EQ(ChangesSince(before), changes) << "Text" << cell.column << " row " << cell.row;
    Type({{cell.row, cell.column, text}});
    Save();
    EXPECT_EQ(ChangesSince(before), std::vector<FieldByte>{});
  }
}

TEST_F(RoundTripTest, SomeBytesComeBackDifferently) {
  Poke(kStored);
  const auto before = image();
  Load("Braves");
  Save();
  EXPECT_EQ(ChangesSince(before), kBack);
}

}  // namespace
}  // namespace morlek

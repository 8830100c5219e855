#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/editor.h"
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
  editor.OpenFirstImage(path, view);
  for (const Team& team : kTeamDirectory) {
    editor.LoadTeam(team.key, view);
    editor.Save();
    ASSERT_EQ(GetFile(path), before) << team.key;
    ASSERT_EQ(messages.Texts(), std::vector<std::string>{kSaved}) << team.key;
    messages.shown.clear();
  }
}

class RoundTripTest : public TeamTest {
 protected:
  /// The bytes of the record that differ from `before`. No byte around it may differ.
  std::vector<FieldByte> ChangesSince(const std::vector<std::uint8_t>& before) {
    std::vector<FieldByte> changes;
    std::vector<std::uint8_t> others = file();
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
  CellText cell;
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

// clang-format on

TEST_F(RoundTripTest, EditsOfOneCellChangeItsBytesAlone) {
  Load("Braves");
  const auto before = file();
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

}  // namespace
}  // namespace morlek

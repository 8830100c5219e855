#include "editor/editor.h"
#include "support/editor_fixture.h"

namespace morlek {
namespace {

class PlayersTest : public TeamTest {
 protected:
  PlayersTest() {
    editor.OpenFirstImage(kImage);
    editor.LoadTeam("Braves");
    loaded = editor.state().grid;
  }

  /// The last step gave this grid, and is one that can be taken back and made again.
  void ExpectOneStepTo(const RosterGrid& expected) {
    EXPECT_EQ(editor.state().grid, expected);
    editor.Undo();
    EXPECT_EQ(editor.state().grid, loaded);
    EXPECT_FALSE(editor.state().can_undo);
    editor.Redo();
    EXPECT_EQ(editor.state().grid, expected);
    editor.Undo();
  }

  Editor editor{messages, disk.Opener()};
  RosterGrid loaded;
};

TEST_F(PlayersTest, ArePastedWithAllThatBothKindsHave) {
  constexpr int kBatter = 2;
  constexpr int kOtherBatter = 9;
  constexpr int kPitcher = 17;
  for (const auto& [from, to] : std::vector<std::pair<int, int>>{
           {kBatter, kOtherBatter}, {kBatter, kPitcher}, {kPitcher, kBatter}}) {
    RosterGrid expected = loaded;
    for (int number = 1; number <= 14; ++number) {
      const bool have_both = number <= 3 || number >= 12 || to == kOtherBatter;
      if (have_both) {
        expected.SetText(CellOfArray(number, to), loaded.Text(CellOfArray(number, from)));
      }
    }
    editor.PastePlayer(to, PlayerAt(loaded, from));
    ExpectOneStepTo(expected);
  }
}

TEST_F(PlayersTest, TradePlacesWithANeighbourOfTheirKind) {
  for (const auto& [row, direction] :
       std::vector<std::pair<int, int>>{{0, -1}, {14, +1}, {15, -1}, {24, +1}}) {
    EXPECT_EQ(editor.MovePlayer(row, direction), std::nullopt);
    EXPECT_FALSE(editor.state().can_undo);
    const int to = row - direction;
    RosterGrid expected = loaded;
    for (int number = 1; number <= 14; ++number) {
      expected.SetText(CellOfArray(number, to), loaded.Text(CellOfArray(number, row)));
      expected.SetText(CellOfArray(number, row), loaded.Text(CellOfArray(number, to)));
    }
    EXPECT_EQ(editor.MovePlayer(row, -direction), to);
    ExpectOneStepTo(expected);
  }
}

TEST_F(PlayersTest, ABlockLeavesWordOfWhatFoundNoPlaceUntilTheNextStep) {
  const auto without_place = [this] {
    const auto* result = std::get_if<PasteResult>(&editor.state().outcome);
    return result == nullptr ? -1 : result->cells;
  };
  const Cell last{Column::kLegs, 24};
  editor.PasteBlock(last, "7\t8\n9");
  EXPECT_EQ(without_place(), 2);
  editor.PasteBlock(last, "7\t8");
  EXPECT_EQ(without_place(), 1) << "though no text changes";
  editor.PasteBlock(last, "3\t");
  EXPECT_EQ(without_place(), 0);
  editor.Type(last, "4");
  EXPECT_EQ(without_place(), -1);
}

}  // namespace
}  // namespace morlek

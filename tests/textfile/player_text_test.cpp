#include "textfile/player_text.h"

#include <gtest/gtest.h>

#include <random>

#include "textfile/pasted_block.h"

namespace morlek {
namespace {

/// A text of what is hard to write into a line.
std::string AnyText(std::mt19937& random) {
  const std::string characters("xx.,\t\"\n\xE4\0", 9);
  std::string text(random() % 6, 'x');
  for (char& each : text) each = characters.at(random() % characters.size());
  return text;
}

std::string WithoutLineFeeds(std::string text) {
  std::erase(text, '\n');
  return text;
}

TEST(PlayerText, ComesBackAsItWent) {
  std::mt19937 random(5);
  for (int round = 0; round < 200; ++round) {
    RosterGrid grid;
    RosterGrid pasted;
    for (const Cell cell : kAllCells) {
      grid.SetText(cell, AnyText(random));
      pasted.SetText(cell, WithoutLineFeeds(grid.Text(cell)));
    }
    EXPECT_EQ(WithBlock({}, {Column::kName, 0}, LinesOf(grid)).grid, pasted);
    for (const int row : {0, 24}) {
      const Player player = PlayerAt(grid, row);
      EXPECT_EQ(UnpackPlayer(PackPlayer(player)), player);
      EXPECT_EQ(PlayerFromLine(BlockOf(row), LineOf(player) + "\r\n"), PlayerAt(pasted, row));
    }
  }
}

TEST(PlayerText, IsOneLineWithATextForEachColumn) {
  const std::string tabs(13, '\t');
  EXPECT_TRUE(PlayerFromLine(kBatters, tabs + "\t")) << "nothing stands behind the last one";
  EXPECT_EQ(PlayerFromLine(kPitchers, "A\t\t\t\t3.5" + std::string(9, '\t'))->texts.at(4), "3.50");
  for (const std::string& text :
       {std::string(), tabs.substr(1), tabs + "\tx", tabs + "\n" + tabs, tabs + "\n\n"}) {
    EXPECT_FALSE(PlayerFromLine(kBatters, text)) << text;
    EXPECT_FALSE(UnpackPlayer("batter\t" + text)) << text;
  }
  for (const std::string& text : {tabs, "\t" + tabs, "batters\t" + tabs, std::string("batter")}) {
    EXPECT_FALSE(UnpackPlayer(text)) << text;
  }
  EXPECT_EQ(UnpackPlayer("pitcher\t\"x\r\n\"" + tabs)->texts.front(), "x\n");
  EXPECT_EQ(UnpackPlayer("pitcher\t" + std::string(40000, 'x') + tabs)->texts.front().size(),
            kLongestText);
}

}  // namespace
}  // namespace morlek

#include "image/team_directory.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace morlek {
namespace {

// The order of the records in the game, which is not that of the toolbar.
// clang-format off
const std::map<int, std::vector<std::string>> kLeagues = {
    {1264385,
     {"Orioles", "Red Sox", "Angels", "White Sox", "Indians", "Tigers", "Royals", "Brewers",
      "Twins", "Yankees", "Athletics", "Mariners", "Rangers", "Blue Jays"}},
    {1278465,
     {"Braves", "Cubs", "Reds", "Astros", "Dodgers", "Expos", "Mets", "Pirates", "Cardinals",
      "Padres", "Giants", "Phillies", "Rockies", "Marlins"}}};
// clang-format on

TEST(TeamDirectory, LeaguesLieInTwoContiguousBlocks) {
  for (const auto& [first, league] : kLeagues) {
    for (int base = first; const std::string& key : league) {
      ASSERT_NE(FindTeam(key), nullptr) << key;
      EXPECT_EQ(FindTeam(key)->base, base) << key;
      base += 800;
    }
  }
}

}  // namespace
}  // namespace morlek

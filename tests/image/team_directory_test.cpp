#include "image/team_directory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
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

TEST(TeamDirectory, IsInTheOrderOfTheCitiesAndNamesTheClubs) {
  std::string city_before;
  for (const Team& team : kTeamDirectory) {
    std::string club = " " + std::string(team.key);
    std::ranges::transform(club, club.begin(), [](unsigned char c) { return std::toupper(c); });
    ASSERT_TRUE(team.display_name.ends_with(club)) << team.key;
    const std::string city(team.display_name.substr(0, team.display_name.size() - club.size()));
    EXPECT_LE(city_before, city) << team.key;
    city_before = city;
  }
}

}  // namespace
}  // namespace morlek

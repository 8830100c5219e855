#include "image/team_directory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace morlek {
namespace {

using League = std::vector<std::string>;

// The order of the records in the game, which is not that of the toolbar.
// clang-format off
const League kAmerican = {
    "Orioles", "Red Sox", "Angels", "White Sox", "Indians", "Tigers", "Royals", "Brewers", "Twins",
    "Yankees", "Athletics", "Mariners", "Rangers", "Blue Jays"};
const League kNational = {
    "Braves", "Cubs", "Reds", "Astros", "Dodgers", "Expos", "Mets", "Pirates", "Cardinals",
    "Padres", "Giants", "Phillies", "Rockies", "Marlins"};
// clang-format on

void ExpectContiguous(const League& league, int first, int last_byte) {
  int base = first;
  for (const std::string& key : league) {
    const Team* team = FindTeam(key);
    ASSERT_NE(team, nullptr) << key;
    EXPECT_EQ(team->base, base) << key;
    base += 800;
  }
  EXPECT_EQ(base - 1, last_byte);
}

TEST(TeamDirectory, LeaguesLieInTwoContiguousBlocks) {
  ExpectContiguous(kAmerican, 1264385, 1275584);
  ExpectContiguous(kNational, 1278465, 1289664);
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

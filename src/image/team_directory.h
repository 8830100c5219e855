#pragma once

#include <array>
#include <string_view>

namespace morlek {

/// One of the game's clubs: its toolbar key (also the tool tip), the name shown over its roster,
/// and the 1-based position of the first byte of its record.
struct Team {
  std::string_view key;
  std::string_view display_name;
  int base;
};

/// All clubs in toolbar order, which is alphabetical by city. The order in the image differs and
/// is the game's own: two blocks of fourteen records, one a league, each 800 bytes from the next.
inline constexpr std::array<Team, 28> kTeamDirectory = {{
    {"Braves", "ATLANTA BRAVES", 1278465},
    {"Orioles", "BALTIMORE ORIOLES", 1264385},
    {"Red Sox", "BOSTON RED SOX", 1265185},
    {"Angels", "CALIFORNIA ANGELS", 1265985},
    {"White Sox", "CHICAGO WHITE SOX", 1266785},
    {"Cubs", "CHICAGO CUBS", 1279265},
    {"Reds", "CINCINNATI REDS", 1280065},
    {"Indians", "CLEVELAND INDIANS", 1267585},
    {"Rockies", "COLORADO ROCKIES", 1288065},
    {"Tigers", "DETROIT TIGERS", 1268385},
    {"Marlins", "FLORIDA MARLINS", 1288865},
    {"Astros", "HOUSTON ASTROS", 1280865},
    {"Royals", "KANSAS CITY ROYALS", 1269185},
    {"Dodgers", "LOS ANGELES DODGERS", 1281665},
    {"Brewers", "MILWAUKEE BREWERS", 1269985},
    {"Twins", "MINNESOTA TWINS", 1270785},
    {"Expos", "MONTREAL EXPOS", 1282465},
    {"Yankees", "NEW YORK YANKEES", 1271585},
    {"Mets", "NEW YORK METS", 1283265},
    {"Athletics", "OAKLAND ATHLETICS", 1272385},
    {"Phillies", "PHILADELPHIA PHILLIES", 1287265},
    {"Pirates", "PITTSBURGH PIRATES", 1284065},
    {"Padres", "SAN DIEGO PADRES", 1285665},
    {"Giants", "SAN FRANCISCO GIANTS", 1286465},
    {"Mariners", "SEATTLE MARINERS", 1273185},
    {"Cardinals", "ST. LOUIS CARDINALS", 1284865},
    {"Rangers", "TEXAS RANGERS", 1273985},
    {"Blue Jays", "TORONTO BLUE JAYS", 1274785},
}};

/// The place of a club of the directory, from 0.
[[nodiscard]] constexpr std::size_t PlaceOf(const Team& team) {
  return static_cast<std::size_t>(&team - kTeamDirectory.data());
}

/// The club with exactly this toolbar key, or null.
[[nodiscard]] constexpr const Team* FindTeam(std::string_view key) {
  for (const Team& team : kTeamDirectory) {
    if (team.key == key) return &team;
  }
  return nullptr;
}

}  // namespace morlek

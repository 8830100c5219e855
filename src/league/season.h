#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "image/team_directory.h"
#include "team/roster_grid.h"

namespace morlek {

/// Sentences, without a line end, that say why something is refused.
using Complaints = std::vector<std::string>;

/// One team of a season.
struct SeasonTeam {
  /// A cell without a text says nothing; that of an image has a byte that no codec knows.
  RosterGrid texts;
  /// The lines of a file on which the players stand; 0 for none.
  std::array<std::int64_t, kSlotCount> lines{};
};

/// All teams in the order of the directory, of an image or as a file has them.
struct Season {
  std::vector<SeasonTeam> teams = std::vector<SeasonTeam>(kTeamDirectory.size());
  bool is_image = false;
};

/// A cell whose text differs, or is to.
struct SeasonChange {
  const Team* team;
  Cell cell;
  /// The player's name in whichever season has it; for a change of the name, the one before.
  std::string name;
  /// Empty when no codec knows it.
  std::string before;
  std::string after;
};

/// A player in words: "Braves 5 W.DELGADO".
[[nodiscard]] std::string PlayerOf(const Team& team, int row, std::string_view name);

/// A change in words: "Braves 5 W.DELGADO: AVG .211 -> .250". What is not known is a "?".
[[nodiscard]] std::string ChangeText(const SeasonChange& change);

/// A text in quotes for a sentence: truncated when it is long, without what a terminal would obey.
[[nodiscard]] std::string Quoted(std::string_view text);

}  // namespace morlek

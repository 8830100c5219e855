#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "team/blocks.h"

namespace morlek {

/// A column of a season's table behind those of team and slot: its header, and the columns of the
/// grid that it stands for; nothing where a kind of player has no such column.
struct SeasonColumn {
  std::string_view header;
  std::optional<Column> of_batter;
  std::optional<Column> of_pitcher;

  /// The column of the grid for the player of a row, 0 to 24.
  [[nodiscard]] constexpr std::optional<Column> For(int row) const {
    return kBatters.Contains(row) ? of_batter : of_pitcher;
  }
};

/// The headers of the columns that say which player a line is about.
inline constexpr std::string_view kTeamHeader = "Team";
inline constexpr std::string_view kSlotHeader = "Slot";

/// All other columns in the order of an export.
inline constexpr std::array<SeasonColumn, 20> kSeasonColumns = {{
    {"Name", Column::kName, Column::kName},
    {"P", Column::kPosition, Column::kPosition},
    {"#", Column::kUniformNumber, Column::kUniformNumber},
    {"Hand", Column::kBattingSide, Column::kThrowingHand},
    {"Bt", Column::kBatting, std::nullopt},
    {"Po", Column::kPower, std::nullopt},
    {"Sp", Column::kSpeed, Column::kPitchSpeed},
    {"Fd", Column::kFielding, std::nullopt},
    {"AVG", Column::kBattingAverage, std::nullopt},
    {"HR", Column::kHomeRuns, std::nullopt},
    {"RBI", Column::kRunsBattedIn, std::nullopt},
    {"ERA", std::nullopt, Column::kEarnedRunAverage},
    {"Co", std::nullopt, Column::kControl},
    {"Fa", std::nullopt, Column::kFatigue},
    {"W", std::nullopt, Column::kWins},
    {"L", std::nullopt, Column::kLosses},
    {"S", std::nullopt, Column::kSaves},
    {"F", Column::kFace, Column::kFace},
    {"Bo", Column::kBody, Column::kBody},
    {"Legs", Column::kLegs, Column::kLegs},
}};

// Every column of both blocks has a place.
static_assert([] {
  for (const auto* block : {&kBatters, &kPitchers}) {
    for (const BlockColumn& each : block->columns) {
      bool is_there = false;
      for (const SeasonColumn& column : kSeasonColumns) {
        is_there = is_there || column.For(block->first_row) == each.column;
      }
      if (!is_there) return false;
    }
  }
  return true;
}());

/// The header over a column of the grid.
[[nodiscard]] constexpr std::string_view HeaderOf(Column column) {
  for (const SeasonColumn& each : kSeasonColumns) {
    if (each.of_batter == column || each.of_pitcher == column) return each.header;
  }
  return {};
}

}  // namespace morlek

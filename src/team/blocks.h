#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "image/record_layout.h"

namespace morlek {

/// The columns of the roster grid by what they hold. kAllCells visits the columns of a row in this
/// order, which is not their order on the screen.
enum class Column {
  kName,
  kPosition,
  kUniformNumber,
  kBattingSide,
  kThrowingHand,
  kBatting,
  kPitchSpeed,
  kPower,
  kControl,
  kSpeed,
  kFatigue,
  kFielding,
  kWins,
  kBattingAverage,
  kEarnedRunAverage,
  kHomeRuns,
  kLosses,
  kRunsBattedIn,
  kSaves,
  kFace,
  kBody,
  kLegs,
};
inline constexpr std::size_t kColumnKinds = 22;

/// How many columns a block has.
inline constexpr int kColumnCount = 14;

/// The columns of the batting stance.
inline constexpr std::array<Column, 3> kFeatures = {Column::kFace, Column::kBody, Column::kLegs};

/// True for the columns of face, body and legs.
[[nodiscard]] constexpr bool IsFeature(Column column) {
  return std::ranges::find(kFeatures, column) != kFeatures.end();
}

/// One column of a block: the caption over it, and what it means in words.
struct BlockColumn {
  Column column;
  std::string_view caption;
  std::string_view meaning;
};

/// The part of the grid that shows one kind of player. Its columns are listed from left to right,
/// which is also their order in a team data file.
struct Block {
  std::string_view player;
  int first_row;
  int end_row;
  std::array<BlockColumn, kColumnCount> columns;

  [[nodiscard]] constexpr bool Contains(int row) const { return row >= first_row && row < end_row; }

  /// The place of a column from the left, 0 to 13; nothing for a column of the other block.
  [[nodiscard]] constexpr std::optional<std::size_t> PlaceOf(Column column) const {
    const auto found = std::ranges::find(columns, column, &BlockColumn::column);
    if (found == columns.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns.begin());
  }
};

// clang-format off
inline constexpr Block kBatters = {
    "batter", 0, kBatterCount,
    {{{Column::kName, "P.NAME", "name"},
      {Column::kPosition, "P", "fielding position"},
      {Column::kUniformNumber, "#", "uniform number"},
      {Column::kBattingSide, "B", "batting side"},
      {Column::kBatting, "Bt", "batting rating"},
      {Column::kPower, "Po", "power rating"},
      {Column::kSpeed, "Sp", "speed rating"},
      {Column::kFielding, "Fd", "fielding rating"},
      {Column::kBattingAverage, "AVG", "batting average"},
      {Column::kHomeRuns, "HR", "home runs"},
      {Column::kRunsBattedIn, "RBI", "runs batted in"},
      {Column::kFace, "F", "face"},
      {Column::kBody, "Bo", "body"},
      {Column::kLegs, "L", "legs"}}}};

inline constexpr Block kPitchers = {
    "pitcher", kBatterCount, kSlotCount,
    {{{Column::kName, "P.NAME", "name"},
      {Column::kPosition, "P", "fielding position"},
      {Column::kUniformNumber, "#", "uniform number"},
      {Column::kThrowingHand, "TH", "throwing hand"},
      {Column::kEarnedRunAverage, "ERA", "earned run average"},
      {Column::kPitchSpeed, "Sp", "speed rating"},
      {Column::kControl, "Co", "control rating"},
      {Column::kFatigue, "Fa", "fatigue rating"},
      {Column::kWins, "W", "wins"},
      {Column::kLosses, "L", "losses"},
      {Column::kSaves, "S", "saves"},
      {Column::kFace, "F", "face"},
      {Column::kBody, "Bo", "body"},
      {Column::kLegs, "L", "legs"}}}};
// clang-format on

/// The block of a row, 0 to 24; lives for the whole run.
[[nodiscard]] constexpr const Block& BlockOf(int row) {
  return row < kBatters.end_row ? kBatters : kPitchers;
}

/// The caption over a column of a block; lives for the whole run.
[[nodiscard]] constexpr std::string_view CaptionOf(const Block& block, Column column) {
  return block.columns.at(block.PlaceOf(column).value()).caption;
}

}  // namespace morlek

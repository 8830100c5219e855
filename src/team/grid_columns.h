#pragma once

#include <array>
#include <span>
#include <string_view>

#include "image/record_layout.h"

namespace morlek {

/// The columns of the roster grid by the numbers of their text box arrays.
enum class Column {
  kText1 = 1,
  kText2,
  kText3,
  kText4,
  kText5,
  kText6,
  kText7,
  kText8,
  kText9,
  kText10,
  kText11,
  kText12,
  kText13,
  kText14,
};
inline constexpr int kColumnCount = 14;

/// True for the columns of face, body and legs.
[[nodiscard]] constexpr bool IsFeature(Column column) {
  return column == Column::kText12 || column == Column::kText13 || column == Column::kText14;
}

/// One column of a block as it stands on the screen: its left edge and width in twips, the caption
/// over it, and what it means in words.
struct GridColumn {
  Column column;
  int left;
  int width;
  std::string_view caption;
  std::string_view meaning;
};

/// A block's columns from left to right, which is also their order in a team data file: the
/// earned run average of pitchers stands further left than the batting average of batters.
using BlockColumns = std::array<GridColumn, kColumnCount>;

inline constexpr BlockColumns kBatterColumns = {{
    {Column::kText1, 0, 1635, "P.NAME", "name"},
    {Column::kText2, 1620, 375, "P", "fielding position"},
    {Column::kText3, 1980, 375, "#", "uniform number"},
    {Column::kText4, 2340, 375, "B", "batting side"},
    {Column::kText5, 2700, 375, "Bt", "batting rating"},
    {Column::kText6, 3060, 375, "Po", "power rating"},
    {Column::kText7, 3420, 375, "Sp", "speed rating"},
    {Column::kText8, 3780, 375, "Fd", "fielding rating"},
    {Column::kText9, 4140, 495, "AVG", "batting average"},
    {Column::kText10, 4620, 375, "HR", "home runs"},
    {Column::kText11, 4980, 435, "RBI", "runs batted in"},
    {Column::kText12, 5400, 375, "F", "face"},
    {Column::kText13, 5760, 375, "Bo", "body"},
    {Column::kText14, 6120, 375, "L", "legs"},
}};

inline constexpr BlockColumns kPitcherColumns = {{
    {Column::kText1, 0, 1635, "P.NAME", "name"},
    {Column::kText2, 1620, 375, "P", "fielding position"},
    {Column::kText3, 1980, 375, "#", "uniform number"},
    {Column::kText4, 2340, 375, "TH", "throwing hand"},
    {Column::kText9, 2700, 495, "ERA", "earned run average"},
    {Column::kText5, 3180, 375, "Sp", "speed rating"},
    {Column::kText6, 3540, 375, "Co", "control rating"},
    {Column::kText7, 3900, 375, "Fa", "fatigue rating"},
    {Column::kText8, 4260, 375, "W", "wins"},
    {Column::kText10, 4620, 375, "L", "losses"},
    {Column::kText11, 4980, 375, "S", "saves"},
    {Column::kText12, 5340, 375, "F", "face"},
    {Column::kText13, 5700, 375, "Bo", "body"},
    {Column::kText14, 6060, 375, "L", "legs"},
}};

/// The columns of the block in which `row` (0 to 24) stands.
[[nodiscard]] constexpr const BlockColumns& ColumnsOfRow(int row) {
  return IsPitcher(row) ? kPitcherColumns : kBatterColumns;
}

}  // namespace morlek

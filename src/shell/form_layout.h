#pragma once

#include <QRect>
#include <QString>
#include <array>

#include "team/cell.h"

namespace morlek {

/// The position of a block of the grid, in twips within the roster frame, the index of the label
/// over its first column, and from left to right the columns' left edges, their widths, and the
/// numbers of the text box arrays that show them.
struct BlockLayout {
  const Block& block;
  int header_top;
  int first_top;
  int first_header;
  std::array<int, kColumnCount> lefts;
  std::array<int, kColumnCount> widths;
  std::array<int, kColumnCount> arrays;
};

// clang-format off
inline constexpr std::array<BlockLayout, 2> kBlockLayouts = {{
    {kBatters, 480, 840, 1,
     {0, 1620, 1980, 2340, 2700, 3060, 3420, 3780, 4140, 4620, 4980, 5400, 5760, 6120},
     {1635, 375, 375, 375, 375, 375, 375, 375, 495, 375, 435, 375, 375, 375},
     {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
    {kPitchers, 5400, 5760, 15,
     {0, 1620, 1980, 2340, 2700, 3180, 3540, 3900, 4260, 4620, 4980, 5340, 5700, 6060},
     {1635, 375, 375, 375, 495, 375, 375, 375, 375, 375, 375, 375, 375, 375},
     {1, 2, 3, 4, 9, 5, 6, 7, 8, 10, 11, 12, 13, 14}}}};
// clang-format on

/// The height of a block's row of headers, in twips.
inline constexpr int kHeaderHeight = 360;

/// The form name of a cell's box: "Text3(0)".
[[nodiscard]] QString BoxNameOf(Cell cell);

/// The rectangle of a cell's box, and of the header over the column at a place (0 to 13) of a
/// block, in logical pixels within the roster frame.
[[nodiscard]] QRect BoxRectOf(Cell cell);
[[nodiscard]] QRect HeaderRectOf(const BlockLayout& layout, std::size_t place);

}  // namespace morlek

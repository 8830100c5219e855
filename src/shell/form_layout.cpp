#include "shell/form_layout.h"

#include "ui/twips.h"

namespace morlek {
namespace {

constexpr int kRowStep = 300;
constexpr int kBoxHeight = 315;  // neighbours share their border line

const BlockLayout& LayoutOf(int row) { return kBlockLayouts.at(kBatters.Contains(row) ? 0 : 1); }

}  // namespace

QString BoxNameOf(Cell cell) {
  const BlockLayout& layout = LayoutOf(cell.row);
  const int number = layout.arrays.at(layout.block.PlaceOf(cell.column).value());
  return QString("Text%1(%2)").arg(number).arg(cell.row);
}

QRect BoxRectOf(Cell cell) {
  const BlockLayout& layout = LayoutOf(cell.row);
  const std::size_t place = layout.block.PlaceOf(cell.column).value();
  const int top = layout.first_top + kRowStep * (cell.row - layout.block.first_row);
  return RectFromTwips(layout.lefts.at(place), top, layout.widths.at(place), kBoxHeight);
}

QRect HeaderRectOf(const BlockLayout& layout, std::size_t place) {
  return RectFromTwips(layout.lefts.at(place), layout.header_top, layout.widths.at(place),
                       kHeaderHeight);
}

}  // namespace morlek

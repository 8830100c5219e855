#include "shell/form_layout.h"

#include "ui/twips.h"

namespace morlek {
namespace {

using enum Column;

constexpr int kRowStep = 300;
constexpr int kBoxHeight = 315;  // neighbours share their border line

/// The number of the text box array that shows a column.
int ArrayNumberOf(Column column) {
  switch (column) {
    case kName:
      return 1;
    case kPosition:
      return 2;
    case kUniformNumber:
      return 3;
    case kBattingSide:
    case kThrowingHand:
      return 4;
    case kBatting:
    case kPitchSpeed:
      return 5;
    case kPower:
    case kControl:
      return 6;
    case kSpeed:
    case kFatigue:
      return 7;
    case kFielding:
    case kWins:
      return 8;
    case kBattingAverage:
    case kEarnedRunAverage:
      return 9;
    case kHomeRuns:
    case kLosses:
      return 10;
    case kRunsBattedIn:
    case kSaves:
      return 11;
    case kFace:
      return 12;
    case kBody:
      return 13;
    case kLegs:
      return 14;
  }
  return 0;
}

int WidthOf(Column column) {
  switch (column) {
    case kName:
      return 1635;
    case kBattingAverage:
    case kEarnedRunAverage:
      return 495;
    case kRunsBattedIn:
      return 435;
    default:
      return 375;
  }
}

const BlockLayout& LayoutOf(int row) { return kBlockLayouts.at(kBatters.Contains(row) ? 0 : 1); }

}  // namespace

QString BoxNameOf(Cell cell) {
  return QString("Text%1(%2)").arg(ArrayNumberOf(cell.column)).arg(cell.row);
}

QRect BoxRectOf(Cell cell) {
  const BlockLayout& layout = LayoutOf(cell.row);
  return RectFromTwips(layout.lefts.at(layout.block.PlaceOf(cell.column).value()),
                       layout.first_top + kRowStep * (cell.row - layout.block.first_row),
                       WidthOf(cell.column), kBoxHeight);
}

QRect HeaderRectOf(const BlockLayout& layout, std::size_t place) {
  return RectFromTwips(layout.lefts.at(place), layout.header_top,
                       WidthOf(layout.block.columns.at(place).column), kHeaderHeight);
}

}  // namespace morlek

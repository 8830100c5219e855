#include "team/column_bytes.h"

#include <algorithm>
#include <array>
#include <functional>

namespace morlek {
namespace {

template <int... kOffsets>
constexpr std::array<int, sizeof...(kOffsets)> kBytesAt = {kOffsets...};

struct ColumnBytes {
  Column column;
  std::span<const int> offsets;
};

static_assert(offset::kName == 0 && kNameBytes == 9);

constexpr std::array<ColumnBytes, kColumnKinds> kColumnBytes = {{
    {Column::kName, kBytesAt<0, 1, 2, 3, 4, 5, 6, 7, 8>},
    {Column::kPosition, kBytesAt<offset::kFieldingPosition>},
    {Column::kUniformNumber, kBytesAt<offset::kUniformNumber>},
    {Column::kBattingSide, kBytesAt<offset::kBattingSide>},
    {Column::kThrowingHand, kBytesAt<offset::kThrowingHand, offset::kPitcherMarks>},
    {Column::kBatting, kBytesAt<offset::kFirstRatings>},
    {Column::kPitchSpeed, kBytesAt<offset::kFirstRatings>},
    {Column::kPower, kBytesAt<offset::kFirstRatings>},
    {Column::kControl, kBytesAt<offset::kFirstRatings>},
    {Column::kSpeed, kBytesAt<offset::kSecondRatings>},
    {Column::kFatigue, kBytesAt<offset::kSecondRatings>},
    {Column::kFielding, kBytesAt<offset::kSecondRatings>},
    {Column::kWins, kBytesAt<offset::kWins>},
    {Column::kBattingAverage, kBytesAt<offset::kBattingAverage, offset::kBattingAverage + 1>},
    {Column::kEarnedRunAverage, kBytesAt<offset::kEarnedRunAverage, offset::kEarnedRunAverage + 1>},
    {Column::kHomeRuns, kBytesAt<offset::kHomeRuns>},
    {Column::kLosses, kBytesAt<offset::kLosses>},
    {Column::kRunsBattedIn, kBytesAt<offset::kRunsBattedIn>},
    {Column::kSaves, kBytesAt<offset::kSaves>},
    {Column::kFace, kBytesAt<offset::kFace>},
    {Column::kBody, kBytesAt<offset::kBody>},
    {Column::kLegs, kBytesAt<offset::kLegs>},
}};
static_assert(std::ranges::adjacent_find(kColumnBytes, std::ranges::greater_equal(),
                                         &ColumnBytes::column) == kColumnBytes.end(),
              "one row a column, in the columns' order");

}  // namespace

std::span<const int> BytesOf(Column column) {
  return kColumnBytes.at(static_cast<std::size_t>(column)).offsets;
}

std::span<const int> WrittenBytesOf(Cell cell) {
  using namespace offset;
  if (cell.column == Column::kThrowingHand) {
    return kBytesAt<kPitcherSFlag, offset::kThrowingHand, kPitcherMarks>;
  }
  if (cell.column == Column::kFace && kPitchers.Contains(cell.row)) {
    return kBytesAt<offset::kFace, offset::kThrowingHand>;
  }
  return BytesOf(cell.column);
}

bool ShareAByte(Cell one, Cell other) {
  return one.row == other.row &&
         std::ranges::any_of(WrittenBytesOf(one), [others = WrittenBytesOf(other)](int offset) {
           return std::ranges::find(others, offset) != others.end();
         });
}

}  // namespace morlek

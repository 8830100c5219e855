#include "team/column_bytes.h"

#include <algorithm>
#include <array>

namespace morlek {
namespace {

template <int... kOffsets>
constexpr std::array<int, sizeof...(kOffsets)> kBytesAt = {kOffsets...};

}  // namespace

std::span<const int> BytesOf(Column column) {
  using enum Column;
  using namespace offset;
  switch (column) {
    case kName:
      static_assert(offset::kName == 0 && kNameBytes == 9);
      return kBytesAt<0, 1, 2, 3, 4, 5, 6, 7, 8>;
    case kPosition:
      return kBytesAt<kFieldingPosition>;
    case kUniformNumber:
      return kBytesAt<offset::kUniformNumber>;
    case kBattingSide:
      return kBytesAt<offset::kBattingSide>;
    case kThrowingHand:
      return kBytesAt<offset::kThrowingHand, kPitcherMarks>;
    case kBatting:
    case kPower:
    case kPitchSpeed:
    case kControl:
      return kBytesAt<kFirstRatings>;
    case kSpeed:
    case kFielding:
    case kFatigue:
      return kBytesAt<kSecondRatings>;
    case kBattingAverage:
      return kBytesAt<offset::kBattingAverage, offset::kBattingAverage + 1>;
    case kEarnedRunAverage:
      return kBytesAt<offset::kEarnedRunAverage, offset::kEarnedRunAverage + 1>;
    case kHomeRuns:
      return kBytesAt<offset::kHomeRuns>;
    case kRunsBattedIn:
      return kBytesAt<offset::kRunsBattedIn>;
    case kWins:
      return kBytesAt<offset::kWins>;
    case kLosses:
      return kBytesAt<offset::kLosses>;
    case kSaves:
      return kBytesAt<offset::kSaves>;
    case kFace:
      return kBytesAt<offset::kFace>;
    case kBody:
      return kBytesAt<offset::kBody>;
    case kLegs:
      return kBytesAt<offset::kLegs>;
  }
  return {};
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

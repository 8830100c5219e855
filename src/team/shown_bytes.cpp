#include "team/shown_bytes.h"

#include <array>

namespace morlek {
namespace {

template <int... kOffsets>
constexpr std::array<int, sizeof...(kOffsets)> kBytesAt = {kOffsets...};

}  // namespace

std::span<const int> ShownOffsets(Cell cell) {
  using enum Column;
  using namespace offset;
  const bool is_pitcher = IsPitcher(cell.row);
  const auto either = [is_pitcher](std::span<const int> batter, std::span<const int> pitcher) {
    return is_pitcher ? pitcher : batter;
  };
  switch (cell.column) {
    case kText1: {
      static_assert(kNameBytes == 9);
      return kBytesAt<0, 1, 2, 3, 4, 5, 6, 7, 8>;
    }
    case kText2:
      return kBytesAt<kFieldingPosition>;
    case kText3:
      return kBytesAt<kUniformNumber>;
    case kText4:
      return either(kBytesAt<kBattingSide>, kBytesAt<kThrowingHand, kPitcherMarks>);
    case kText5:
    case kText6:
      return kBytesAt<kFirstRatings>;
    case kText7:
      return kBytesAt<kSecondRatings>;
    case kText8:
      return either(kBytesAt<kSecondRatings>, kBytesAt<kWins>);
    case kText9:
      return either(kBytesAt<kBattingAverage, kBattingAverage + 1>,
                    kBytesAt<kEarnedRunAverage, kEarnedRunAverage + 1>);
    case kText10:
      return either(kBytesAt<kHomeRuns>, kBytesAt<kLosses>);
    case kText11:
      return either(kBytesAt<kRunsBattedIn>, kBytesAt<kSaves>);
    case kText12:
      return kBytesAt<kFace>;
    case kText13:
      return kBytesAt<kBody>;
    case kText14:
      return kBytesAt<kLegs>;
  }
  return {};
}

}  // namespace morlek

#include "team/accepted_texts.h"

namespace morlek {

std::string AcceptedTexts(Column column) {
  using enum Column;
  switch (column) {
    case kName:
      return "an initial, a period and up to 8 letters A to Z";
    case kPosition:
      return "P, C, 1B, 2B, 3B, SS, LF, CF, RF, IF, OF, DH";
    case kBattingSide:
      return "R, L or S";
    case kThrowingHand:
      return "R or L, alone or with S, S<, S>, < or > behind it";
    case kBatting:
    case kPitchSpeed:
    case kSpeed:
      return "1 to 10";
    case kPower:
    case kControl:
    case kFielding:
      return "1 to 9";
    case kFatigue:
      return "1 to 100";
    case kBattingAverage:
      return ".000 to .511";
    case kEarnedRunAverage:
      return "0.00 to 5.11";
    case kUniformNumber:
    case kHomeRuns:
    case kRunsBattedIn:
    case kWins:
    case kLosses:
    case kSaves:
      return "0 to 200";
    case kFace:
    case kBody:
    case kLegs:
      return "0 to FF in hexadecimal";
  }
  return {};
}

}  // namespace morlek
